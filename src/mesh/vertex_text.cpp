#include "mesh/vertex_text.h"

#include "mesh/obj_number.h"
#include "text/columns.h"

namespace norvik::obj {

namespace {

constexpr std::size_t kFirstOfX = 3;
constexpr std::size_t kSecondOfX = 4;

/// Takes the text up to the next blank off the front, the blank with it.
std::string_view takeWord(std::string_view& text) {
  const std::string_view word = text::before(text, " ");
  text.remove_prefix(word.size() == text.size() ? word.size() : word.size() + 1);
  return word;
}

}  // namespace

VertexTexts VertexCutter::operator()(std::string_view line) {
  // The second test sees the line that the first one has shortened, so it can fire on a minus of y.
  if (text::column(line, "-") != kFirstOfX) line = text::from(line, kSecondOfX);
  bool shortNegative = false;
  if (text::column(line, "-") == kFirstOfX) {
    shortNegative = text::column(line, ".") == kSecondOfX;
    line = text::from(line, kFirstOfX);
  }
  VertexTexts texts;
  texts.x = takeWord(line);
  if (text::begins(line, " ")) line.remove_prefix(1);
  if (shortNegative) {
    // The number of characters that are kept was counted for "-0.": the first digit goes.
    constexpr std::size_t kFirstKept = 4;
    shortened_.assign("-0.").append(text::from(texts.x, kFirstKept));
    texts.x = shortened_;
  }
  texts.y = takeWord(line);
  texts.z = line;
  return texts;
}

Position positionOf(const VertexTexts& texts) {
  return {leadingSingle(texts.x), leadingSingle(texts.y), leadingSingle(texts.z)};
}

}  // namespace norvik::obj
