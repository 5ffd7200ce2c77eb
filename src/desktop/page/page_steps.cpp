#include "desktop/page/page_steps.h"

#include <algorithm>

namespace norvik::desktop {

namespace {

enum class Kind { blank, word, sign, end };

Kind kindOf(char c) {
  if (c == '\r' || c == '\n') return Kind::end;
  if (c == ' ' || c == '\t') return Kind::blank;
  const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                      c == '_' || static_cast<unsigned char>(c) >= 0x80;
  return letter ? Kind::word : Kind::sign;
}

}  // namespace

PageLine PageSteps::line(std::size_t number) const {
  const auto found = content_.lines(number, 1);
  const text::LongText::Line none{content_.size(), content_.size()};
  return {content_, found.empty() ? none : found.front(), isWide_};
}

std::size_t PageSteps::right(std::size_t place) const {
  if (place >= content_.size()) return content_.size();
  const PageLine at = lineAt(place);
  const std::size_t offset = place - at.start();
  if (offset < at.size()) return at.start() + at.next(offset);
  return place + (content_.slice(place, 2) == "\r\n" ? 2 : 1);
}

std::size_t PageSteps::left(std::size_t place) const {
  if (place == 0) return 0;
  const PageLine at = lineAt(place);
  const std::size_t offset = place - at.start();
  if (offset > at.size()) return at.start() + at.size();  // between a CR and its LF
  if (offset > 0) return at.start() + at.previous(offset);
  const bool pair = place >= 2 && content_.slice(place - 2, 2) == "\r\n";
  return place - (pair ? 2 : 1);
}

std::size_t PageSteps::wordRight(std::size_t place) const {
  const std::size_t size = content_.size();
  if (place >= size) return size;
  const Kind kind = kindOf(content_.at(place));
  if (kind == Kind::end) return right(place);
  std::size_t at = place;
  while (at < size && kindOf(content_.at(at)) == kind) ++at;
  while (at < size && kindOf(content_.at(at)) == Kind::blank) ++at;
  return at;
}

std::size_t PageSteps::wordLeft(std::size_t place) const {
  std::size_t at = std::min(place, content_.size());
  const std::size_t before = left(at);
  if (at == 0 || kindOf(content_.at(before)) == Kind::end) return before;
  while (at > 0 && kindOf(content_.at(at - 1)) == Kind::blank) --at;
  if (at == 0) return 0;
  const Kind kind = kindOf(content_.at(at - 1));
  if (kind == Kind::end) return at;
  while (at > 0 && kindOf(content_.at(at - 1)) == kind) --at;
  return at;
}

std::size_t PageSteps::home(std::size_t place) const {
  const PageLine at = lineAt(place);
  std::size_t first = at.start();
  while (first < at.start() + at.size() && kindOf(content_.at(first)) == Kind::blank) ++first;
  return place == first ? at.start() : first;
}

std::size_t PageSteps::end(std::size_t place) const {
  const PageLine at = lineAt(place);
  return at.start() + at.size();
}

std::size_t PageSteps::vertically(std::size_t place, std::int64_t lines,
                                  std::int64_t column) const {
  const auto last = static_cast<std::int64_t>(content_.lineCount()) - 1;
  const auto from = static_cast<std::int64_t>(content_.lineOf(place));
  const std::int64_t to = std::clamp<std::int64_t>(from + lines, 0, last);
  const PageLine at = line(static_cast<std::size_t>(to));
  return at.start() + at.offsetAt(static_cast<double>(column));
}

text::LongText::Line PageSteps::word(std::size_t place) const {
  const std::size_t size = content_.size();
  std::size_t begin = std::min(place, size);
  std::size_t end = begin;
  Kind kind = begin < size ? kindOf(content_.at(begin)) : Kind::end;
  if (kind != Kind::word && begin > 0 && kindOf(content_.at(begin - 1)) == Kind::word) {
    kind = Kind::word;
  }
  if (kind == Kind::end) return {begin, begin};
  while (begin > 0 && kindOf(content_.at(begin - 1)) == kind) --begin;
  while (end < size && kindOf(content_.at(end)) == kind) ++end;
  return {begin, end};
}

}  // namespace norvik::desktop
