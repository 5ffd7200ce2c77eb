#include "front/text_pane.h"

#include <algorithm>
#include <utility>

namespace norvik::front {

void TextPane::noteChange() {
  ++textChanges_;
  touch();
}

void TextPane::setContent(text::LongText content) {
  edits_.setAll(std::move(content));
  caret_ = 0;
  selectionLength_ = 0;
  noteChange();
}

void TextPane::replace(std::size_t at, std::size_t length, std::string_view bytes, bool typed) {
  const std::size_t begin = std::min(at, content_.size());
  edits_.replace(begin, length, bytes, typed);
  caret_ = begin + bytes.size();
  selectionLength_ = 0;
  noteChange();
}

void TextPane::show(const std::optional<text::LongTextEdits::Change>& change) {
  if (!change) return;
  const bool isAll = change->length == content_.size();
  caret_ = isAll ? 0 : change->at;
  selectionLength_ = isAll ? 0 : change->length;
  noteChange();
}

void TextPane::reset() {
  content_ = {};
  edits_.forget();
  caret_ = 0;
  selectionLength_ = 0;
  noteChange();
}

void TextPane::setCaret(std::size_t position, std::size_t length) {
  const std::size_t begin = std::min(position, content_.size());
  edits_.endStep();
  set(caret_, begin);
  set(selectionLength_, std::min(length, content_.size() - begin));
}

std::size_t TextPane::lineCount() const {
  if (content_.empty()) return 0;
  const std::size_t last = content_.lineCount() - 1;
  return content_.lineStart(last) == content_.size() ? last : last + 1;
}

}  // namespace norvik::front
