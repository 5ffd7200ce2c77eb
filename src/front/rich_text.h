#pragma once
// Text boxes of a further kind.

#include "front/text_controls.h"

#include <string>
#include <string_view>
#include <vector>

namespace norvik::front {

/// A page of text whose lines may have a colour each.
class RichTextBox : public TextBox {
 public:
  RichTextBox(Form& form, std::string_view name) : TextBox(form, name, ControlKind::richTextBox) {}

  /// The colours of the first lines; lines behind them have the foreground colour.
  const std::vector<Colour>& lineColours() const { return lineColours_; }
  void setLineColours(const std::vector<Colour>& colours) { set(lineColours_, colours); }

  /// The colour of a line, counted from 0.
  Colour lineColour(std::size_t line) const {
    return line < lineColours_.size() ? lineColours_[line] : fore();
  }
  /// How many lines the text has: an empty one has none, a line end at its end begins no further
  /// line.
  std::size_t lineCount() const;

 private:
  std::vector<Colour> lineColours_;
};

/// A line of text with a list of texts to choose from.
class ComboBox : public TextBox {
 public:
  ComboBox(Form& form, std::string_view name) : TextBox(form, name, ControlKind::comboBox) {}

  const std::vector<std::string>& items() const { return items_; }
  void add(std::string_view item) {
    items_.emplace_back(item);
    touch();
  }
  void clear() {
    items_.clear();
    touch();
  }

 private:
  std::vector<std::string> items_;
};

}  // namespace norvik::front
