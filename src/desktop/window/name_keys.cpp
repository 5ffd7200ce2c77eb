#include "desktop/window/name_keys.h"

#include "desktop/words.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>

#include <algorithm>

namespace norvik::desktop {

NameKeys::NameKeys(Maker& maker, front::ListBox& names, front::TextBox& box, ListView& view)
    : QObject(&view),
      maker_(maker),
      names_(names),
      box_(box),
      view_(view),
      line_(new QLineEdit(view.viewport())) {
  line_->setObjectName(QStringLiteral("InPlace.") + QString::fromStdString(names.name()));
  line_->setAccessibleName(QStringLiteral("New name"));
  line_->hide();
  line_->installEventFilter(this);
  view.setToolTip(QStringLiteral("F2 or Enter renames, Delete marks a name to be dropped"));
  view.installEventFilter(this);
  connect(view.model(), &QAbstractItemModel::modelReset, this, [this] { leave(); });
  connect(view.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { leave(); });
}

const ListModel& NameKeys::items() const {
  return dynamic_cast<const ListModel&>(*view_.model());
}

bool NameKeys::eventFilter(QObject* watched, QEvent* event) {
  const bool typing = watched == line_;
  if (typing && event->type() == QEvent::FocusOut) {
    // A menu, or another window in front, gives the keys back.
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) leave();
    return false;
  }
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = *static_cast<QKeyEvent*>(event);
  const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  if (typing) {
    if (enter) take();
    if (key.key() == Qt::Key_Escape) leave();
    // The list below would move to another row.
    const bool moves = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down ||
                       key.key() == Qt::Key_PageUp || key.key() == Qt::Key_PageDown;
    return enter || moves || key.key() == Qt::Key_Escape;
  }
  const QModelIndex current = view_.currentIndex();
  if (!current.isValid() || (key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  if (enter || key.key() == Qt::Key_F2) {
    edit();
    return true;
  }
  if (key.key() != Qt::Key_Delete) return false;
  give(items().item(current.row()), {});
  return true;
}

void NameKeys::edit() {
  const QModelIndex current = view_.currentIndex();
  view_.scrollTo(current);
  item_ = items().item(current.row());
  old_ = names_.item(item_);
  QRect row = view_.visualRect(current);
  const int missing = std::max(0, line_->sizeHint().height() - row.height());
  row.adjust(0, -(missing / 2), 0, missing - missing / 2);
  row.moveTop(std::clamp(row.top(), 0, std::max(0, view_.viewport()->height() - row.height())));
  line_->setGeometry(row);
  line_->setText(shown(old_));
  line_->selectAll();
  line_->show();
  line_->setFocus(Qt::OtherFocusReason);
}

/// The name stays as it is.
void NameKeys::leave() {
  if (line_->isHidden()) return;
  const bool hadKeys = view_.window()->focusWidget() == line_;
  line_->hide();
  if (hadKeys) view_.setFocus(Qt::OtherFocusReason);
}

void NameKeys::take() {
  const std::string name = typed(line_->text(), old_);
  const int item = item_;
  const bool there = names_.item(item) == old_;
  leave();
  if (there && !name.empty() && name != old_) give(item, name);
}

void NameKeys::give(int item, const std::string& name) {
  const int row = items().rowOf(item);
  maker_.dispatcher().run(box_.name(), [&] {
    names_.choose(item);
    box_.setText(name);
    box_.changed.raise();
    box_.key.raise("Enter");
  });
  // The next name is an arrow key away.
  const QModelIndex next = items().index(std::min(row, items().rowCount() - 1));
  if (next.isValid()) view_.selectionModel()->setCurrentIndex(next, QItemSelectionModel::NoUpdate);
}

}  // namespace norvik::desktop
