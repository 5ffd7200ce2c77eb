// The keys of a page.

#include "desktop/bind/widget_binding.h"
#include "desktop/page/page_view.h"
#include "desktop/words.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace norvik::desktop {

namespace {

/// Keys that have a name and no character.
const char* namedKey(int key) {
  switch (key) {
    case Qt::Key_Backspace:
      return "Backspace";
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return "Tab";
    case Qt::Key_Left:
      return "Left";
    case Qt::Key_Right:
      return "Right";
    case Qt::Key_Up:
      return "Up";
    case Qt::Key_Down:
      return "Down";
    case Qt::Key_Home:
      return "Home";
    case Qt::Key_End:
      return "End";
    case Qt::Key_PageUp:
      return "PageUp";
    case Qt::Key_PageDown:
      return "PageDown";
    case Qt::Key_Insert:
      return "Insert";
    default:
      return nullptr;
  }
}

bool isLetterTyped(const QKeyEvent& event) {
  const QString text = event.text();
  if (text.isEmpty() || !(text[0].isPrint() || text[0] == QLatin1Char('\t'))) return false;
  const Qt::KeyboardModifiers held = event.modifiers();
  const bool command = held.testFlag(Qt::ControlModifier) != held.testFlag(Qt::AltModifier);
  return !command;
}

}  // namespace

std::string pageKeyName(const QKeyEvent& event) {
  const std::string held = event.modifiers().testFlag(Qt::ControlModifier) ? "Ctrl+" : "";
  if (const char* name = namedKey(event.key()); name != nullptr) return held + name;
  const bool pad = event.modifiers().testFlag(Qt::KeypadModifier);
  if (pad && !event.text().isEmpty() && event.text()[0].isPrint()) {
    return held + "Num" + event.text().toStdString();
  }
  return keyName(event);
}

void PageView::keyPressEvent(QKeyEvent* event) {
  // Tab is a letter here; Ctrl+Tab leaves the page.
  const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
  if (tab && event->modifiers().testFlag(Qt::ControlModifier)) {
    const bool back =
        event->key() == Qt::Key_Backtab || event->modifiers().testFlag(Qt::ShiftModifier);
    QAbstractScrollArea::focusNextPrevChild(!back);
    return;
  }
  const std::string name = pageKeyName(*event);
  const bool done = editByKey(*event) || moveByKey(*event);
  const bool wanted = done || name == "F3" || name == "Ctrl+F3";
  if (!wanted) QAbstractScrollArea::keyPressEvent(event);
  if (wanted) event->accept();
  if (!name.empty() && name != "Escape" && hooks_.key) hooks_.key(name);
}

bool PageView::focusNextPrevChild(bool next) {
  return !writable_ && QAbstractScrollArea::focusNextPrevChild(next);
}

void PageView::replaceSelection(const std::string& bytes, bool typed) {
  if (!writable_ || !hooks_.edit) return;
  const std::size_t start = selectionStart();
  const std::size_t length = selectionEnd() - start;
  if (length == 0 && bytes.empty()) return;
  goalColumn_ = -1;
  anchor_ = start + bytes.size();
  caret_ = anchor_;
  hooks_.edit(start, length, bytes, typed);
}

/// Takes out what stands between the caret and a place, or the selection if there is one.
void PageView::eraseTo(std::size_t place) {
  if (anchor_ == caret_) anchor_ = place;
  replaceSelection({}, true);
}

bool PageView::editByKey(const QKeyEvent& event) {
  if (event.matches(QKeySequence::Undo)) {
    if (hooks_.undo) hooks_.undo();
  } else if (event.matches(QKeySequence::Redo) ||
             (event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier)) {
    if (hooks_.redo) hooks_.redo();
  } else if (event.matches(QKeySequence::Copy)) {
    copy();
  } else if (event.matches(QKeySequence::Cut)) {
    cut();
  } else if (event.matches(QKeySequence::Paste)) {
    paste();
  } else if (event.matches(QKeySequence::DeleteStartOfWord)) {
    eraseTo(steps_.wordLeft(caret_));
  } else if (event.matches(QKeySequence::DeleteEndOfWord)) {
    eraseTo(steps_.wordRight(caret_));
  } else if (event.key() == Qt::Key_Backspace) {
    eraseTo(steps_.left(caret_));
  } else if (event.key() == Qt::Key_Delete) {
    eraseTo(steps_.right(caret_));
  } else if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
    replaceSelection("\r\n", true);
  } else if (isLetterTyped(event)) {
    replaceSelection(coded(event.text()), true);
  } else {
    return false;
  }
  return true;
}

bool PageView::moveByKey(const QKeyEvent& event) {
  const bool select = event.modifiers().testFlag(Qt::ShiftModifier);
  const bool control = event.modifiers().testFlag(Qt::ControlModifier);
  const bool selected = anchor_ != caret_ && !select && !control;
  const auto vertically = [&](std::int64_t lines) {
    const PageLine line = steps_.lineAt(caret_);
    const std::int64_t column =
        goalColumn_ >= 0 ? goalColumn_ : line.columnOf(caret_ - line.start());
    moveTo(steps_.vertically(caret_, lines, column), select);
    goalColumn_ = column;
  };
  const int page = std::max(1, rowsOnView() - 1);
  switch (event.key()) {
    case Qt::Key_Left:
      if (selected) {
        moveTo(selectionStart(), false);
      } else {
        moveTo(control ? steps_.wordLeft(caret_) : steps_.left(caret_), select);
      }
      return true;
    case Qt::Key_Right:
      if (selected) {
        moveTo(selectionEnd(), false);
      } else {
        moveTo(control ? steps_.wordRight(caret_) : steps_.right(caret_), select);
      }
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down: {
      const int step = event.key() == Qt::Key_Up ? -1 : 1;
      if (control) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + step);
      } else {
        vertically(step);
      }
      return true;
    }
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
      const int step = event.key() == Qt::Key_PageUp ? -page : page;
      verticalScrollBar()->setValue(verticalScrollBar()->value() + step);
      vertically(step);
      return true;
    }
    case Qt::Key_Home:
      moveTo(control ? 0 : steps_.home(caret_), select);
      return true;
    case Qt::Key_End:
      moveTo(control ? content().size() : steps_.end(caret_), select);
      return true;
    default:
      if (!event.matches(QKeySequence::SelectAll)) return false;
      selectAll();
      return true;
  }
}

void PageView::moveTo(std::size_t place, bool select) {
  goalColumn_ = -1;
  caret_ = place;
  if (!select) anchor_ = place;
  if (hooks_.placeCaret) hooks_.placeCaret(selectionStart(), selectionEnd() - selectionStart());
  presentCaret();
}

void PageView::selectAll() {
  anchor_ = 0;
  moveTo(content().size(), true);
}

void PageView::inputMethodEvent(QInputMethodEvent* event) {
  if (!event->commitString().isEmpty()) replaceSelection(coded(event->commitString()), true);
  event->accept();
}

QVariant PageView::inputMethodQuery(Qt::InputMethodQuery query) const {
  switch (query) {
    case Qt::ImEnabled:
      return writable_;
    case Qt::ImCursorRectangle:
      return caretRect();
    default:
      return QAbstractScrollArea::inputMethodQuery(query);
  }
}

/// Letters as bytes in the coding of the line, or else of the first line that has letters beyond
/// those of every coding.
std::string PageView::coded(const QString& letters) const {
  const std::string plain = letters.toStdString();
  const auto isBeyond = [](char c) { return static_cast<unsigned char>(c) >= 0x80; };
  if (std::none_of(plain.begin(), plain.end(), isBeyond)) return plain;
  std::size_t begin = 0;
  std::string model;
  const auto lineAt = [this](std::size_t place) {
    const text::LongText::Line line = content().lines(content().lineOf(place), 1).front();
    return content().slice(line.start, std::min(line.end - line.start, PageLine::kLongest));
  };
  model = lineAt(caret_);
  if (std::any_of(model.begin(), model.end(), isBeyond)) return typed(letters, model);
  content().visitFrom(0, [&](std::string_view bytes) {
    const auto found = std::find_if(bytes.begin(), bytes.end(), isBeyond);
    if (found != bytes.end()) {
      model = lineAt(begin + static_cast<std::size_t>(found - bytes.begin()));
      return false;
    }
    begin += bytes.size();
    return true;
  });
  return typed(letters, model);
}

}  // namespace norvik::desktop
