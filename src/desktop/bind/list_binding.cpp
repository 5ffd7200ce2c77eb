#include "desktop/bind/list_binding.h"

#include "desktop/bind/drag.h"
#include "desktop/theme.h"
#include "desktop/words.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>

namespace norvik::desktop {

ListBinding::ListBinding(Dispatcher& dispatcher, front::ListBox& list, ListView& view)
    : WidgetBinding(dispatcher, list, view, Clicks::own), list_(list), view_(view), model_(list) {
  model_.setTickable(list.tickChanged.hasHandlers());
  view.setModel(&model_);
  view.setSelectionMode(list.multiple() ? QAbstractItemView::ExtendedSelection
                                        : QAbstractItemView::SingleSelection);
  view.setActs({.pressed = [this](const QMouseEvent& event) { press(event); },
                .released = [this](const QMouseEvent& event) { release(event); },
                .doubleClicked = [this] { raise(list_.doubleClicked); },
                .key = [this](const QKeyEvent& event) { return key(event); },
                .mayDrag = [this] { return list_.dragging() && this->dispatcher().open(); },
                .drag = [this] { dragControl(list_, view_, shownItem(list_.chosen())); }});
  connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this](const QItemSelection& selected, const QItemSelection& deselected) {
            takeSelection(selected, deselected);
          });
  watch(*view.viewport());
}

bool ListBinding::eventFilter(QObject* watched, QEvent* event) {
  // The view itself tells of the mouse and the keys, when it is done with them.
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
      return false;
    default:
      return WidgetBinding::eventFilter(watched, event);
  }
}

void ListBinding::refresh() {
  if (model_.stale()) {
    const int top = view_.verticalScrollBar()->value();
    // An item more or less leaves the place in the list; another content starts at its top.
    const bool keepsPlace = std::abs(model_.rowCount() - list_.count()) <= 1;
    model_.update();
    if (keepsPlace) {
      view_.doItemsLayout();
      view_.verticalScrollBar()->setValue(top);
    }
  } else if (list_.tickChanged.hasHandlers()) {
    view_.viewport()->update();
  }
  showSelection();
  paintText(view_, list_.fore());
  WidgetBinding::refresh();
}

void ListBinding::showSelection() {
  QItemSelection selection;
  for (int row = 0; row < list_.count(); ++row) {
    if (!list_.selected(row)) continue;
    int last = row;
    while (list_.selected(last + 1)) ++last;
    selection.append({model_.index(row), model_.index(last)});
    row = last;
  }
  QItemSelectionModel& model = *view_.selectionModel();
  if (model.selection() == selection) return;
  model.select(selection, QItemSelectionModel::ClearAndSelect);
  if (list_.selected(list_.index())) {
    model.setCurrentIndex(model_.index(list_.index()), QItemSelectionModel::NoUpdate);
  }
}

void ListBinding::takeSelection(const QItemSelection& selected, const QItemSelection& deselected) {
  if (refreshing() || model_.stale()) return;
  for (const QModelIndex& index : deselected.indexes()) list_.setSelected(index.row(), false);
  for (const QModelIndex& index : selected.indexes()) list_.setSelected(index.row(), true);
  const QModelIndex current = view_.selectionModel()->currentIndex();
  if (current.isValid() && list_.selected(current.row())) list_.choose(current.row());
  if (selected.size() == 1 && !current.isValid()) list_.choose(selected.first().top());
}

void ListBinding::press(const QMouseEvent& event) {
  const QModelIndex at = view_.indexAt(event.position().toPoint());
  if (at.isValid() && event.button() == Qt::LeftButton) {
    if (list_.tickChanged.hasHandlers() && tickAt(event)) return;
    if (list_.selected(at.row())) list_.choose(at.row());
  }
  raise(list_.pressed, mouseOf(event));
}

void ListBinding::release(const QMouseEvent& event) {
  raise(list_.released, mouseOf(event));
  const bool onItem = view_.indexAt(event.position().toPoint()).isValid();
  if (event.button() == Qt::LeftButton && onItem) raise(list_.clicked);
}

bool ListBinding::tickAt(const QMouseEvent& event) {
  const QPoint place = event.position().toPoint();
  const QModelIndex at = view_.indexAt(place);
  const int width = view_.style()->pixelMetric(QStyle::PM_IndicatorWidth) + 8;
  if (place.x() > view_.visualRect(at).left() + width) return false;
  tick(at.row());
  return true;
}

void ListBinding::tick(int row) {
  list_.setTicked(row, !list_.ticked(row));
  raise(list_.tickChanged, row);
}

bool ListBinding::key(const QKeyEvent& event) {
  if (list_.key.hasHandlers()) {
    const std::string name = keyName(event);
    if (!name.empty()) raise(list_.key, name);
    if (name == "Enter" || name == "Escape" || name == "Delete" || name.starts_with("Alt+")) {
      return true;
    }
  }
  const QModelIndex current = view_.currentIndex();
  if (event.modifiers() == Qt::ShiftModifier && event.key() == Qt::Key_F10) {
    raise(list_.released, front::Mouse{front::MouseButton::right, 0, 0});
    return true;
  }
  if (!current.isValid() || event.modifiers().testFlag(Qt::ControlModifier)) return false;
  switch (event.key()) {
    case Qt::Key_Space:
      if (list_.tickChanged.hasHandlers()) tick(current.row());
      list_.choose(current.row());
      raise(list_.clicked);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      list_.choose(current.row());
      if (list_.doubleClicked.hasHandlers()) {
        raise(list_.doubleClicked);
      } else {
        raise(list_.clicked);
      }
      return true;
    case Qt::Key_Menu:
      raise(list_.released, front::Mouse{front::MouseButton::right, 0, 0});
      return true;
    default:
      return false;
  }
}

}  // namespace norvik::desktop
