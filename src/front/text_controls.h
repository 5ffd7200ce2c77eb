#pragma once
// Controls that show or take text.

#include "front/control.h"

#include <string>
#include <string_view>

namespace norvik::front {

/// A control with a caption: labels, and what is labelled itself.
class CaptionControl : public Control {
 public:
  CaptionControl(Form& form, std::string_view name, ControlKind kind, std::string_view caption)
      : Control(form, name, kind), caption_(caption) {}

  const std::string& caption() const { return caption_; }
  void setCaption(std::string_view caption) { set(caption_, caption); }

 private:
  std::string caption_;
};

/// A line of text for display; the path labels are also clicked, and the hidden ones hold state.
class Label : public CaptionControl {
 public:
  Label(Form& form, std::string_view name, std::string_view caption = {})
      : CaptionControl(form, name, ControlKind::label, caption) {}
};

/// A button with words on it.
class CommandButton : public CaptionControl {
 public:
  CommandButton(Form& form, std::string_view name, std::string_view caption)
      : CaptionControl(form, name, ControlKind::commandButton, caption) {}
};

/// A box of text, plain or rich, or the text part of a combo box.
class TextBox : public Control {
 public:
  TextBox(Form& form, std::string_view name, ControlKind kind = ControlKind::textBox)
      : Control(form, name, kind) {}

  const std::string& text() const { return text_; }
  /// Sets the text as a tool does; `changed` is for what the operator types.
  void setText(std::string_view text) { set(text_, text); }

  /// The caret's place in bytes from the start, and how many bytes behind it are selected.
  std::size_t caret() const { return caret_; }
  std::size_t selectionLength() const { return selectionLength_; }
  void setCaret(std::size_t position, std::size_t length) {
    set(caret_, position);
    set(selectionLength_, length);
  }

  Event<> changed{*this};     ///< the operator has typed
  Event<> caretMoved{*this};  ///< the operator has placed the caret or selected

 private:
  std::string text_;
  std::size_t caret_ = 0;
  std::size_t selectionLength_ = 0;
};

}  // namespace norvik::front
