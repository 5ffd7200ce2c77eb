// The mouse and the clipboard of a page.

#include "desktop/page/page_view.h"
#include "desktop/words.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QStyleHints>

#include <algorithm>

namespace norvik::desktop {

namespace {

/// The bytes as they are, beside the letters that other programs take.
const QString kBytes = QStringLiteral("application/x-norvik-text");

}  // namespace

void PageView::mousePressEvent(QMouseEvent* event) {
  if (hooks_.pressed) hooks_.pressed();
  const std::size_t place = placeAt(event->position().toPoint());
  if (event->button() == Qt::MiddleButton) {
    moveTo(place, false);
    if (QGuiApplication::clipboard()->supportsSelection()) {
      insertFrom(QGuiApplication::clipboard()->mimeData(QClipboard::Selection));
    }
    return;
  }
  if (event->button() == Qt::RightButton) {
    const bool inside = place >= selectionStart() && place < selectionEnd();
    if (!inside) moveTo(place, false);
    return;
  }
  if (event->button() != Qt::LeftButton) return;
  const bool third =
      sinceDouble_.isValid() &&
      sinceDouble_.elapsed() < QGuiApplication::styleHints()->mouseDoubleClickInterval();
  sinceDouble_.invalidate();
  selectsByMouse_ = true;
  selectsWords_ = false;
  if (third) {
    const std::size_t line = content().lineOf(place);
    anchor_ = content().lineStart(line);
    moveTo(content().lineStart(line + 1), true);
    return;
  }
  moveTo(place, event->modifiers().testFlag(Qt::ShiftModifier));
}

void PageView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const text::LongText::Line word = steps_.word(placeAt(event->position().toPoint()));
  selectsByMouse_ = true;
  selectsWords_ = true;
  anchor_ = word.start;
  moveTo(word.end, true);
  sinceDouble_.start();
}

void PageView::mouseMoveEvent(QMouseEvent*) {
  if (!selectsByMouse_) return;
  extendByMouse();
  const bool outside = !viewport()->rect().contains(viewport()->mapFromGlobal(QCursor::pos()));
  if (outside && !pull_.isActive()) pull_.start();
}

void PageView::extendByMouse() {
  const QPoint point = viewport()->mapFromGlobal(QCursor::pos());
  if (viewport()->rect().contains(point)) pull_.stop();
  std::size_t place = placeAt(point);
  if (selectsWords_) {
    const text::LongText::Line word = steps_.word(place);
    place = place < anchor_ ? word.start : word.end;
  }
  if (place != caret_) moveTo(place, true);
}

void PageView::mouseReleaseEvent(QMouseEvent* event) {
  pull_.stop();
  selectsByMouse_ = false;
  QClipboard* clipboard = QGuiApplication::clipboard();
  constexpr std::size_t kMostSelected = std::size_t{1} << 20U;
  const std::size_t length = selectionEnd() - selectionStart();
  if (clipboard->supportsSelection() && length > 0 && length <= kMostSelected) {
    clipboard->setMimeData(selectionData(), QClipboard::Selection);
  }
  if (hooks_.clicked && event->button() != Qt::MiddleButton) hooks_.clicked();
}

void PageView::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  const auto add = [&menu](const char* name, bool enabled, const std::function<void()>& act) {
    QAction* action = menu.addAction(QString::fromLatin1(name));
    action->setEnabled(enabled);
    connect(action, &QAction::triggered, &menu, act);
  };
  const bool selected = anchor_ != caret_;
  add("&Undo", writable_ && pane_.canUndo(), [this] { hooks_.undo(); });
  add("&Redo", writable_ && pane_.canRedo(), [this] { hooks_.redo(); });
  menu.addSeparator();
  add("Cu&t", writable_ && selected, [this] { cut(); });
  add("&Copy", selected, [this] { copy(); });
  add("&Paste", writable_, [this] { paste(); });
  menu.addSeparator();
  add("Select &All", !content().empty(), [this] { selectAll(); });
  menu.exec(event->globalPos());
}

QMimeData* PageView::selectionData() const {
  const std::string bytes = content().slice(selectionStart(), selectionEnd() - selectionStart());
  auto* held = new QMimeData;
  QString letters = shown(bytes);
  letters.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  letters.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  held->setText(letters);
  held->setData(kBytes, QByteArray::fromStdString(bytes));
  return held;
}

void PageView::copy() {
  if (anchor_ != caret_) QGuiApplication::clipboard()->setMimeData(selectionData());
}

void PageView::cut() {
  copy();
  if (anchor_ != caret_) replaceSelection({}, false);
}

void PageView::paste() {
  insertFrom(QGuiApplication::clipboard()->mimeData());
}

void PageView::insertFrom(const QMimeData* held) {
  if (held == nullptr) return;
  if (held->hasFormat(kBytes)) {
    replaceSelection(held->data(kBytes).toStdString(), false);
  } else if (held->hasText()) {
    // A line end typed is CR LF, and so is one that is pasted.
    QString letters = held->text();
    letters.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    letters.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    letters.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    replaceSelection(coded(letters), false);
  }
}

}  // namespace norvik::desktop
