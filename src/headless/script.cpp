#include "headless/script.h"

namespace norvik::headless {

std::string ScriptLine::word() {
  const auto first = text_.find_first_not_of(' ', at_);
  if (first == std::string::npos) {
    at_ = text_.size();
    return {};
  }
  at_ = std::min(text_.find(' ', first), text_.size());
  return text_.substr(first, at_ - first);
}

int ScriptLine::wordsLeft() const {
  ScriptLine ahead = *this;
  int count = 0;
  for (; ahead.hasMore(); ++count) ahead.word();
  return count;
}

std::string ScriptLine::lastWord() {
  const auto last = text_.find_last_not_of(' ');
  if (last == std::string::npos || last < at_) return {};
  const auto blank = text_.find_last_of(' ', last);
  const auto first = std::max(blank == std::string::npos ? 0 : blank + 1, at_);
  std::string word = text_.substr(first, last + 1 - first);
  text_.erase(first);
  // The blank in front of the word goes with it.
  if (text_.size() > at_ && text_.ends_with(' ')) text_.pop_back();
  return word;
}

std::string ScriptLine::rest() {
  const auto first = std::min(at_ + 1, text_.size());
  at_ = text_.size();
  return text_.substr(first);
}

std::optional<ScriptLine> Script::next() {
  std::string text;
  while (std::getline(in_, text)) {
    ++number_;
    if (text.ends_with('\r')) text.pop_back();
    const bool blank = text.find_first_not_of(" \t") == std::string::npos;
    if (!blank && !text.starts_with('#')) return ScriptLine(number_, std::move(text));
  }
  return std::nullopt;
}

}  // namespace norvik::headless
