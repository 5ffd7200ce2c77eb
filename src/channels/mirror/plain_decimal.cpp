#include "channels/mirror/plain_decimal.h"

#include "text/columns.h"
#include "text/number_text.h"

#include <algorithm>

namespace norvik::channels {

namespace {

constexpr std::size_t kKept = 8;

/// More places than that are cut off anyway, or are a number beyond all meshes.
constexpr double kMostPlaces = 20;

}  // namespace

std::string plainDecimal(std::string_view number) {
  const auto mark = number.find('e');
  if (mark == std::string_view::npos) return std::string{number};
  std::string_view mantissa = number.substr(0, mark);
  const double power = std::clamp(text::value(number.substr(mark + 1)), -kMostPlaces, kMostPlaces);
  std::string result;
  if (mantissa.starts_with('-') || mantissa.starts_with('+')) {
    if (mantissa.front() == '-') result = "-";
    mantissa.remove_prefix(1);
  }
  std::string digits{text::before(mantissa, ".")};
  int point = static_cast<int>(digits.size()) + static_cast<int>(power);
  if (text::holds(mantissa, ".")) digits += text::after(mantissa, ".");

  if (point <= 0) {
    digits.insert(0, static_cast<std::size_t>(-point), '0');
    result += "0.";
  } else {
    const auto whole = static_cast<std::size_t>(point);
    if (digits.size() < whole) digits.append(whole - digits.size(), '0');
    result += digits.substr(0, whole) + ".";
    digits.erase(0, whole);
  }
  return std::string{text::leftmost(result + digits, kKept)};
}

}  // namespace norvik::channels
