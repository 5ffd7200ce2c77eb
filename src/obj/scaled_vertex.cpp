#include "obj/scaled_vertex.h"

#include "mesh/obj_number.h"
#include "text/columns.h"
#include "text/number_text.h"

namespace norvik::obj {

namespace {

struct Coordinates {
  std::string x;
  std::string_view y;
  std::string_view z;
};

/// Takes the text up to the first blank off the front, and that blank.
std::string_view takeWord(std::string_view& text) {
  const std::string_view word = text::before(text, " ");
  text.remove_prefix(word.size());
  if (!text.empty()) text.remove_prefix(1);
  return word;
}

void dropBlank(std::string_view& text) {
  if (text::begins(text, " ")) text.remove_prefix(1);
}

/// The texts of the coordinates. The cut is not that of the mesh's reader: it keeps an x as it is,
/// but for a "-.5", which becomes "-0.5".
Coordinates cut(std::string_view line) {
  constexpr std::size_t kFirstOfX = 3;
  constexpr std::size_t kSecondOfX = 4;
  constexpr std::size_t kLongestShortened = 10;
  // The second test sees what the first one has left, so that a minus of y can stand for x.
  if (text::column(line, "-") != kFirstOfX) line = text::from(line, kFirstOfX);
  bool shortNegative = false;
  if (text::column(line, "-") == kFirstOfX) {
    shortNegative = text::column(line, ".") == kSecondOfX;
    line = text::from(line, kFirstOfX);
  }
  Coordinates result;
  dropBlank(line);
  result.x = takeWord(line);
  dropBlank(line);
  if (shortNegative) {
    const std::string whole = "-0." + result.x.substr(std::min(result.x.size(), kFirstOfX - 1));
    result.x = text::leftmost(whole, kLongestShortened);
  }
  result.y = takeWord(line);
  dropBlank(line);
  result.z = line;
  return result;
}

/// Both numbers are in single precision, and so is what comes of them.
float scaled(float value, float amount) {
  const double exact = amount > 0 ? static_cast<double>(value) * static_cast<double>(amount)
                                  : static_cast<double>(value) / -static_cast<double>(amount);
  return toSingle(exact);
}

/// A number's text with a zero in front of its point and without the sign column.
std::string written(float number) {
  std::string text = text::numberText(number);
  if (text == " 0") return "0.000000";
  if (text::begins(text, " .")) return "0" + text.substr(1);
  if (text::begins(text, "-.")) return "-0" + text.substr(1);
  if (text::begins(text, " ")) text.erase(0, 1);
  return text;
}

/// How wide a coordinate is made. It goes by the number that is scaled, not by what becomes of it.
struct Widths {
  std::size_t positive;
  std::size_t negative;
};

std::string column(float value, float amount, Widths widths) {
  std::string text = written(scaled(value, amount));
  if (value == 0) return text;
  const std::size_t width = value > 0 ? widths.positive : widths.negative;
  if (text.size() < width) text.append(width - text.size(), '0');
  return text;
}

}  // namespace

bool isScaledLine(std::string_view line) {
  return text::begins(line, "v ") || text::begins(line, "v\t");
}

std::string scaledVertex(std::string_view line, float amount) {
  constexpr Widths kOfX{11, 12};
  constexpr Widths kOfOthers{8, 9};
  constexpr std::size_t kCutOff = 3;
  const Coordinates texts = cut(line);
  const float x = leadingSingle(texts.x);
  std::string result = x > 0 ? "v  " : "v ";
  result += text::withoutLast(column(x, amount, kOfX), kCutOff);
  result += " " + column(leadingSingle(texts.y), amount, kOfOthers);
  result += " " + column(leadingSingle(texts.z), amount, kOfOthers);
  return result;
}

}  // namespace norvik::obj
