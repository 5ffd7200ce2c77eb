#include "desktop/bind/list_binding.h"

#include "desktop/bind/drag.h"
#include "desktop/theme.h"
#include "desktop/words.h"
#include "front/form.h"

#include <QApplication>
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
                .drag = [this] { dragControl(list_, view_, dragCaption()); },
                .filter = [this](const QString& text) { filter(text); }});
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
    const bool keepsPlace = std::abs(model_.items() - list_.count()) <= 1;
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
  const int rows = model_.rowCount();
  const auto selected = [&](int row) { return row < rows && list_.selected(model_.item(row)); };
  for (int row = 0; row < rows; ++row) {
    if (!selected(row)) continue;
    int last = row;
    while (selected(last + 1)) ++last;
    selection.append({model_.index(row), model_.index(last)});
    row = last;
  }
  QItemSelectionModel& model = *view_.selectionModel();
  if (model.selection() == selection) return;
  model.select(selection, QItemSelectionModel::ClearAndSelect);
  const int current = model_.rowOf(list_.index());
  if (list_.selected(list_.index()) && current >= 0) {
    model.setCurrentIndex(model_.index(current), QItemSelectionModel::NoUpdate);
  }
}

void ListBinding::takeSelection(const QItemSelection& selected, const QItemSelection& deselected) {
  if (refreshing() || model_.stale()) return;
  for (const QModelIndex& index : deselected.indexes()) {
    list_.setSelected(model_.item(index.row()), false);
  }
  for (const QModelIndex& index : selected.indexes()) {
    list_.setSelected(model_.item(index.row()), true);
  }
  if (!QApplication::keyboardModifiers().testFlag(Qt::ControlModifier)) deselectHidden();
  const QModelIndex current = view_.selectionModel()->currentIndex();
  const int item = model_.item(current.row());
  if (current.isValid() && list_.selected(item)) list_.choose(item);
  if (selected.size() == 1 && !current.isValid()) list_.choose(model_.item(selected.first().top()));
}

void ListBinding::filter(const QString& text) {
  model_.setFilter(text);
  update();
  const QModelIndex current = view_.selectionModel()->currentIndex();
  if (current.isValid()) view_.scrollTo(current);
}

/// What the operator chooses anew takes the place of what the filter keeps back as well.
void ListBinding::deselectHidden() {
  if (!model_.filtered()) return;
  for (const int item : list_.selection()) {
    if (model_.rowOf(item) < 0) list_.setSelected(item, false);
  }
}

/// The item that travels with the mouse, or how many.
QString ListBinding::dragCaption() const {
  const auto count = static_cast<int>(list_.selection().size());
  const QString item = shownItem(list_.chosen());
  return count > 1 ? QStringLiteral("%1 items").arg(count) : item;
}

void ListBinding::press(const QMouseEvent& event) {
  const QModelIndex at = view_.indexAt(event.position().toPoint());
  if (at.isValid() && event.button() == Qt::LeftButton) {
    if (list_.tickChanged.hasHandlers() && tickAt(event)) return;
    if (list_.selected(model_.item(at.row()))) list_.choose(model_.item(at.row()));
  }
  raise(list_.pressed, mouseOf(event));
}

void ListBinding::release(const QMouseEvent& event) {
  const bool onItem = view_.indexAt(event.position().toPoint()).isValid();
  // A plain click on the selected item changes nothing that is seen, so that nobody else tells.
  if (event.button() == Qt::LeftButton && onItem && event.modifiers() == Qt::NoModifier) {
    deselectHidden();
  }
  raise(list_.released, mouseOf(event));
  if (event.button() == Qt::LeftButton && onItem) raise(list_.clicked);
}

bool ListBinding::tickAt(const QMouseEvent& event) {
  const QPoint place = event.position().toPoint();
  const QModelIndex at = view_.indexAt(place);
  const int width = view_.style()->pixelMetric(QStyle::PM_IndicatorWidth) + 8;
  if (place.x() > view_.visualRect(at).left() + width) return false;
  tick(model_.item(at.row()));
  return true;
}

void ListBinding::tick(int item) {
  list_.setTicked(item, !list_.ticked(item));
  raise(list_.tickChanged, item);
}

bool ListBinding::key(const QKeyEvent& event) {
  if (list_.key.hasHandlers()) {
    const std::string name = keyName(event);
    if (!name.empty()) raise(list_.key, name);
    if (name == "Delete" || name.starts_with("Alt+")) return true;
    // Escape goes on to a form that waits for it, Enter to what it does in a list.
    if (name == "Escape" && !list_.form().key.hasHandlers()) return true;
    if (name == "Enter" && !list_.clicked.hasHandlers() && !list_.doubleClicked.hasHandlers()) {
      return true;
    }
  }
  const QModelIndex current = view_.currentIndex();
  if (event.modifiers() == Qt::ShiftModifier && event.key() == Qt::Key_F10) {
    raise(list_.released, front::Mouse{front::MouseButton::right, 0, 0});
    return true;
  }
  if (!current.isValid() || event.modifiers().testFlag(Qt::ControlModifier)) return false;
  const int item = model_.item(current.row());
  switch (event.key()) {
    case Qt::Key_Space:
      if (list_.tickChanged.hasHandlers()) tick(item);
      list_.choose(item);
      raise(list_.clicked);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      list_.choose(item);
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
