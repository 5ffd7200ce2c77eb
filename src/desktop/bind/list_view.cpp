#include "desktop/bind/list_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>

#include <utility>

namespace norvik::desktop {

namespace {

/// The first row from one on, around the end, whose item a test takes; -1 if there is none.
template <typename Test>
int findFrom(const ListModel& items, int start, const Test& test) {
  const int count = items.rowCount();
  for (int i = 0; i < count; ++i) {
    const int row = (start + i) % count;
    if (test(shownItem(items.list().item(items.item(row))).trimmed())) return row;
  }
  return -1;
}

/// Rows with some air between them.
class Rows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr int kAir = 5;
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kAir);
  }
};

}  // namespace

ListView::ListView(QWidget* parent) : QListView(parent) {
  setItemDelegate(new Rows(this));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerItem);
}

QSize ListView::minimumSizeHint() const {
  constexpr int kRows = 2;
  constexpr int kRowMargin = 5;
  const int rows = kRows * (fontMetrics().height() + kRowMargin);
  return {QListView::minimumSizeHint().width(), rows + 2 * frameWidth()};
}

void ListView::keyboardSearch(const QString& text) {
  const auto* items = dynamic_cast<ListModel*>(model());
  if (items == nullptr || items->rowCount() == 0 || text.isEmpty()) return;
  const bool goesOn =
      sinceKey_.isValid() && sinceKey_.elapsed() < QApplication::keyboardInputInterval() * 2;
  sought_ = goesOn ? sought_ + text : text;
  sinceKey_.start();

  const int current = currentIndex().isValid() ? currentIndex().row() : 0;
  // A letter alone goes on to the next item; more letters narrow the search down.
  const int start = sought_.size() == 1 ? current + 1 : current;
  int row = findFrom(*items, start, [this](const QString& item) {
    return item.startsWith(sought_, Qt::CaseInsensitive);
  });
  if (row < 0) {
    row = findFrom(*items, start, [this](const QString& item) {
      return item.contains(sought_, Qt::CaseInsensitive);
    });
  }
  if (row < 0) return;
  const QModelIndex index = items->index(row);
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
  scrollTo(index);
}

void ListView::mousePressEvent(QMouseEvent* event) {
  pressedAt_ = event->position().toPoint();
  pressed_ = true;
  doubleClick_ = false;
  // A right press asks for help and chooses nothing.
  if (event->button() == Qt::LeftButton) QListView::mousePressEvent(event);
  if (acts_.pressed) acts_.pressed(*event);
}

void ListView::mouseMoveEvent(QMouseEvent* event) {
  const bool held = pressed_ && (event->buttons() & Qt::LeftButton) != 0;
  if (held && acts_.mayDrag && acts_.mayDrag()) {
    const int way = (event->position().toPoint() - pressedAt_).manhattanLength();
    if (way >= QApplication::startDragDistance()) {
      pressed_ = false;
      acts_.drag();
    }
    return;
  }
  QListView::mouseMoveEvent(event);
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) QListView::mouseReleaseEvent(event);
  pressed_ = false;
  if (std::exchange(doubleClick_, false)) return;
  if (acts_.released) acts_.released(*event);
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  doubleClick_ = true;
  if (event->button() != Qt::LeftButton) return;
  QListView::mouseDoubleClickEvent(event);
  if (acts_.doubleClicked) acts_.doubleClicked();
}

void ListView::keyPressEvent(QKeyEvent* event) {
  if (acts_.key && acts_.key(*event)) return;
  QListView::keyPressEvent(event);
}

}  // namespace norvik::desktop
