#include "mesh/uv_text.h"

#include "mesh/exponent_repair.h"
#include "text/columns.h"
#include "text/number_text.h"

namespace norvik::obj {

namespace {

std::string uText(float number) {
  std::string text = withoutExponent(text::numberText(number));
  if (text::holds(text, "-")) text.replace(0, 1, "0");
  return text;
}

}  // namespace

std::string uvLine(float u, float v) {
  std::string second = uText(v);
  if (text::begins(second, " .")) second.replace(0, 1, "0");
  return "vt " + uText(u) + " " + second;
}

}  // namespace norvik::obj
