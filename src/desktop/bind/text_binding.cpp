#include "desktop/bind/text_binding.h"

#include "desktop/ink.h"
#include "desktop/theme.h"
#include "desktop/words.h"
#include "front/rich_text.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextBlock>

#include <algorithm>

namespace norvik::desktop {

namespace {

/// The characters in front of a place that is told in bytes.
int charactersTo(const std::string& text, std::size_t bytes) {
  return static_cast<int>(shown(std::string_view{text}.substr(0, bytes)).size());
}

std::size_t bytesTo(const QString& text, int characters, const std::string& before) {
  return typed(text.left(characters), before).size();
}

bool isRight(const QMouseEvent& event) {
  return event.button() == Qt::RightButton;
}

}  // namespace

LineBinding::LineBinding(Dispatcher& dispatcher, front::TextBox& box, QLineEdit& edit,
                         QWidget& widget)
    : WidgetBinding(dispatcher, box, widget, Clicks::own), box_(box), edit_(edit) {
  if (&edit != &widget) watch(edit);
  connect(&edit, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (!accepts()) return;
    box_.setText(typed(text, box_.text()));
    takeCaret();
    raise(box_.changed);
  });
  const auto caretMoved = [this] {
    if (refreshing() || !this->dispatcher().open()) return;
    takeCaret();
    if (box_.caretMoved.hasHandlers()) raise(box_.caretMoved);
  };
  connect(&edit, &QLineEdit::cursorPositionChanged, this, caretMoved);
  connect(&edit, &QLineEdit::selectionChanged, this, caretMoved);
}

void LineBinding::takeCaret() {
  const int start = edit_.hasSelectedText() ? edit_.selectionStart() : edit_.cursorPosition();
  const std::string selected = typed(edit_.selectedText(), box_.text());
  // A caret in step needs no update of the widget that it comes from.
  box_.setCaret(bytesTo(edit_.text(), start, box_.text()), selected.size());
}

void LineBinding::refresh() {
  const QString text = shown(box_.text());
  if (edit_.text() != text) {
    edit_.setText(text);
    // A path longer than the box shows its file's name, not its drive.
    if (!edit_.hasFocus()) edit_.setCursorPosition(static_cast<int>(text.size()));
  } else if (edit_.hasFocus()) {
    const int caret = charactersTo(box_.text(), box_.caret());
    const int end = charactersTo(box_.text(), box_.caret() + box_.selectionLength());
    const bool inStep = edit_.hasSelectedText()
                            ? edit_.selectionStart() == caret && edit_.selectionEnd() == end
                            : edit_.cursorPosition() == caret && end == caret;
    if (!inStep) edit_.setSelection(caret, end - caret);
  }
  paintText(edit_, box_.fore());
  WidgetBinding::refresh();
}

bool LineBinding::mousePressed(const QMouseEvent& event) {
  const bool wanted = box_.pressed.hasHandlers();
  if (wanted) WidgetBinding::mousePressed(event);
  return wanted && isRight(event);
}

bool LineBinding::mouseDoubleClicked(const QMouseEvent& event) {
  if (!box_.doubleClicked.hasHandlers()) return false;
  WidgetBinding::mouseDoubleClicked(event);
  return true;
}

bool LineBinding::keyPressed(const QKeyEvent& event) {
  if (WidgetBinding::keyPressed(event)) return true;
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (!enter || !box_.doubleClicked.hasHandlers()) return false;
  raise(box_.doubleClicked);
  return true;
}

PageBinding::PageBinding(Dispatcher& dispatcher, front::TextBox& box, QPlainTextEdit& edit)
    : WidgetBinding(dispatcher, box, edit, Clicks::own), box_(box), edit_(edit) {
  watch(*edit.viewport());
  connect(&edit, &QPlainTextEdit::textChanged, this, [this] {
    if (accepts()) takeText();
  });
  connect(&edit, &QPlainTextEdit::cursorPositionChanged, this, [this] {
    if (refreshing() || !box_.caretMoved.hasHandlers() || !this->dispatcher().open()) return;
    takeCaret();
    raise(box_.caretMoved);
  });
}

void PageBinding::takeText() {
  // Lines end as in the files.
  QString text = edit_.toPlainText();
  box_.setText(typed(text.replace(QLatin1Char('\n'), QStringLiteral("\r\n")), box_.text()));
  takeCaret();
  raise(box_.changed);
}

void PageBinding::takeCaret() {
  const QTextCursor cursor = edit_.textCursor();
  const QString text = edit_.toPlainText();
  const auto place = [&](int characters) {
    const QString before = text.left(characters);
    return typed(before, box_.text()).size() +
           static_cast<std::size_t>(before.count(QLatin1Char('\n')));
  };
  const std::size_t start = place(cursor.selectionStart());
  box_.setCaret(start, place(cursor.selectionEnd()) - start);
}

void PageBinding::refresh() {
  const QString text = shownMessage(box_.text());
  if (edit_.toPlainText() != text) edit_.setPlainText(text);
  paintText(edit_, box_.fore());
  paintLines();
  WidgetBinding::refresh();
}

/// Writes the lines of a page in their own colours.
void PageBinding::paintLines() {
  const auto* page = dynamic_cast<const front::RichTextBox*>(&box_);
  if (page == nullptr) return;
  QList<QTextEdit::ExtraSelection> lines;
  QTextBlock block = edit_.document()->begin();
  for (const front::Colour colour : page->lineColours()) {
    if (!block.isValid()) break;
    QTextEdit::ExtraSelection line;
    line.cursor = QTextCursor(block);
    line.cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    line.format.setForeground(readableInk(colour, edit_.palette()));
    lines.append(line);
    block = block.next();
  }
  edit_.setExtraSelections(lines);
}

bool PageBinding::mousePressed(const QMouseEvent& event) {
  const bool wanted = box_.pressed.hasHandlers();
  if (wanted) WidgetBinding::mousePressed(event);
  return wanted && isRight(event);
}

bool PageBinding::mouseDoubleClicked(const QMouseEvent& event) {
  if (!box_.doubleClicked.hasHandlers()) return false;
  WidgetBinding::mouseDoubleClicked(event);
  return true;
}

bool PageBinding::keyPressed(const QKeyEvent& event) {
  // Escape closes what a double click closes.
  if (event.key() == Qt::Key_Escape && box_.doubleClicked.hasHandlers() &&
      !box_.key.hasHandlers()) {
    raise(box_.doubleClicked);
    return true;
  }
  return WidgetBinding::keyPressed(event);
}

}  // namespace norvik::desktop
