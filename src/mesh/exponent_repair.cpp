#include "mesh/exponent_repair.h"

#include "mesh/obj_number.h"
#include "text/columns.h"

#include <algorithm>

namespace norvik::obj {

std::string withoutExponent(std::string_view number) {
  const std::size_t mark = text::column(number, "E");
  if (mark == 0) return std::string{number};
  constexpr std::size_t kToExponent = 3;
  constexpr std::size_t kKept = 8;
  const auto exponent = static_cast<long>(leadingIndex(text::from(number, mark + kToExponent)));
  std::string digits{text::trimmed(text::leftmost(number, mark - 1))};
  if (text::begins(digits, "-")) digits.erase(0, 1);
  const auto point = static_cast<long>(text::column(digits, "."));
  std::erase(digits, '.');
  const long zeros = std::clamp(exponent - point + 1, 0L, static_cast<long>(kKept));
  const std::string plain = "0." + std::string(static_cast<std::size_t>(zeros), '0') + digits;
  return plain.substr(0, kKept);
}

}  // namespace norvik::obj
