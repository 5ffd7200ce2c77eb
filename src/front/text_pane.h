#pragma once
// A page of text of any size.

#include "front/control.h"
#include "text/long/long_text.h"
#include "text/long/long_text_edits.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvik::front {

/// A page that keeps the bytes of a file as they are and is edited in place: who draws it shows the
/// text that is here, and no key copies the whole of it. A tool that wants the text as one asks for
/// it. Edits can be taken back, also those that a tool makes.
class TextPane : public Control {
 public:
  TextPane(Form& form, std::string_view name) : Control(form, name, ControlKind::richTextBox) {}

  const text::LongText& content() const { return content_; }
  /// All of it, copied together.
  std::string text() const { return content_.string(); }

  /// Takes another text, the caret at its start.
  void setContent(text::LongText content);
  /// Puts a text in the place of `length` bytes; the caret stands behind it. With `typed` it may
  /// join the step before it.
  void replace(std::size_t at, std::size_t length, std::string_view bytes, bool typed = false);
  /// The next key begins a step of its own.
  void endStep() { edits_.endStep(); }

  bool canUndo() const { return edits_.canUndo(); }
  bool canRedo() const { return edits_.canRedo(); }
  /// The caret stands behind what came back, which is selected if it is not all of the text.
  void undo() { show(edits_.undo()); }
  void redo() { show(edits_.redo()); }

  /// No text, and nothing to take back.
  void reset();

  /// The caret's place in bytes from the start, and how many bytes behind it are selected.
  std::size_t caret() const { return caret_; }
  std::size_t selectionLength() const { return selectionLength_; }
  void setCaret(std::size_t position, std::size_t length);

  /// How many lines have a colour of their own: an empty text has none, and a line end at its end
  /// begins no further line.
  std::size_t lineCount() const;

  /// Counts the changes of the text.
  std::uint64_t textChanges() const { return textChanges_; }

  Event<> changed{*this};     ///< the operator has typed
  Event<> caretMoved{*this};  ///< the operator has placed the caret or selected

 private:
  void show(const std::optional<text::LongTextEdits::Change>& change);
  void noteChange();

  text::LongText content_;
  text::LongTextEdits edits_{content_};
  std::size_t caret_ = 0;
  std::size_t selectionLength_ = 0;
  std::uint64_t textChanges_ = 0;
};

}  // namespace norvik::front
