#include "text/long/long_text_edits.h"

#include <algorithm>
#include <utility>

namespace norvik::text {

void LongTextEdits::forget() {
  steps_.clear();
  done_ = 0;
  kept_ = 0;
  open_ = false;
}

/// Whether an edit goes on with the last step, as the next letter of a word does, or the next
/// Backspace or Delete; then the step knows of it.
bool LongTextEdits::joins(std::size_t at, std::size_t length, std::size_t inserted) {
  if (!open_ || done_ == 0) return false;
  Step& last = steps_[done_ - 1];
  if (length == 0 && inserted > 0 && at == last.at + last.length) {
    last.length += inserted;
    return true;
  }
  if (inserted > 0 || length == 0 || last.length > 0) return false;
  if (at + length == last.at) {
    last.kept.insert(0, text_.cut(at, length));
    last.at = at;
  } else if (at == last.at) {
    last.kept.insert(last.kept.size(), text_.cut(at, length));
  } else {
    return false;
  }
  kept_ += length;
  return true;
}

void LongTextEdits::add(Step step) {
  for (std::size_t i = done_; i < steps_.size(); ++i) kept_ -= steps_[i].kept.size();
  steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
  kept_ += step.kept.size();
  steps_.push_back(std::move(step));
  std::size_t old = 0;
  while (old + 1 < steps_.size() && (kept_ > kMostKept || steps_.size() - old > kMostSteps)) {
    kept_ -= steps_[old].kept.size();
    ++old;
  }
  steps_.erase(steps_.begin(), steps_.begin() + static_cast<std::ptrdiff_t>(old));
  done_ = steps_.size();
}

void LongTextEdits::replace(std::size_t at, std::size_t length, std::string_view bytes,
                            bool typed) {
  const std::size_t begin = std::min(at, text_.size());
  const std::size_t count = std::min(length, text_.size() - begin);
  if (count == 0 && bytes.empty()) return;
  const bool isEnd = bytes.find_first_of("\r\n") != std::string_view::npos;
  if (typed && !isEnd && done_ == steps_.size() && joins(begin, count, bytes.size())) {
    text_.replace(begin, 0, bytes);
    return;
  }
  Step step{begin, bytes.size(), {}};
  if (count > 0) step.kept = text_.cut(begin, count);
  text_.replace(begin, 0, bytes);
  add(std::move(step));
  open_ = typed && !isEnd;
}

void LongTextEdits::setAll(LongText text) {
  if (text_.empty() && text.empty()) return;
  // Nobody wants the emptiness back that was there in front of the first text.
  if (text_.empty() && steps_.empty()) {
    text_ = std::move(text);
    return;
  }
  // A text that comes into a pane which was emptied for it is one step with that.
  if (text_.empty() && done_ > 0 && done_ == steps_.size() && steps_.back().length == 0) {
    steps_.back().length = text.size();
    text_ = std::move(text);
    open_ = false;
    return;
  }
  Step step{0, text.size(), std::exchange(text_, std::move(text))};
  add(std::move(step));
  open_ = false;
}

LongTextEdits::Change LongTextEdits::turn(Step& step) {
  kept_ -= step.kept.size();
  LongText now = text_.cut(step.at, step.length);
  step.length = step.kept.size();
  text_.insert(step.at, std::move(step.kept));
  step.kept = std::move(now);
  kept_ += step.kept.size();
  open_ = false;
  return {step.at, step.length};
}

std::optional<LongTextEdits::Change> LongTextEdits::undo() {
  if (!canUndo()) return std::nullopt;
  return turn(steps_[--done_]);
}

std::optional<LongTextEdits::Change> LongTextEdits::redo() {
  if (!canRedo()) return std::nullopt;
  return turn(steps_[done_++]);
}

}  // namespace norvik::text
