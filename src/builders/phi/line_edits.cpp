#include "builders/phi/line_edits.h"

#include <utility>

namespace norvik::builders {

void LineEdits::add(Edit edit) {
  edits_.erase(edits_.begin() + static_cast<std::ptrdiff_t>(done_), edits_.end());
  if (saved_ && *saved_ > done_) saved_.reset();
  edits_.push_back(std::move(edit));
  ++done_;
}

void LineEdits::clear() {
  *this = {};
}

std::optional<LineEdits::Edit> LineEdits::undo() {
  if (!canUndo()) return std::nullopt;
  return edits_[--done_];
}

std::optional<LineEdits::Edit> LineEdits::redo() {
  if (!canRedo()) return std::nullopt;
  return edits_[done_++];
}

}  // namespace norvik::builders
