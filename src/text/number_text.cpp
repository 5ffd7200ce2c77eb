#include "text/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace norvik::text {

namespace {

constexpr int kSignificantDigits = 7;
constexpr std::uint64_t kLastExactCount = 1U << 24U;  // single precision counts no further

/// Digits and decimal exponent of a positive number, rounded to seven digits, without trailing
/// zeros: 12.5 is {"125", 1}.
struct Decimal {
  std::string digits;
  int exponent = 0;
};

Decimal toDecimal(float number) {
  std::array<char, 32> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                 std::chars_format::scientific, kSignificantDigits - 1)
                       .ptr;
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const auto mark = text.find('e');
  Decimal result;
  for (const char c : text.substr(0, mark)) {
    if (c != '.') result.digits += c;
  }
  result.digits.erase(result.digits.find_last_not_of('0') + 1);
  const auto exponent = text.substr(mark + (text[mark + 1] == '+' ? 2 : 1));
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), result.exponent);
  return result;
}

std::string exponentForm(const Decimal& decimal) {
  std::string text = decimal.digits.substr(0, 1);
  if (decimal.digits.size() > 1) text += "." + decimal.digits.substr(1);
  const int size = std::abs(decimal.exponent);
  text += decimal.exponent < 0 ? "E-" : "E+";
  if (size < 10) text += '0';
  return text + std::to_string(size);
}

std::string fixedForm(const Decimal& decimal) {
  if (decimal.exponent < 0) {
    return "." + std::string(static_cast<std::size_t>(-decimal.exponent - 1), '0') + decimal.digits;
  }
  const auto whole = static_cast<std::size_t>(decimal.exponent) + 1;
  if (decimal.digits.size() <= whole) {
    return decimal.digits + std::string(whole - decimal.digits.size(), '0');
  }
  return decimal.digits.substr(0, whole) + "." + decimal.digits.substr(whole);
}

/// Whether a number that no double can hold is too small for it, and not too large.
bool isTiny(std::string_view number) {
  const auto mark = std::min(number.find('e'), number.size());
  const auto mantissa = number.substr(0, mark);
  const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
  std::string_view power = number.substr(std::min(mark + 1, number.size()));
  if (power.starts_with('+')) power.remove_prefix(1);
  int exponent = 0;
  const auto parsed = std::from_chars(power.data(), power.data() + power.size(), exponent);
  if (parsed.ec == std::errc::result_out_of_range) return power.starts_with('-');
  return point - first + exponent < 0;
}

}  // namespace

std::string numberText(float number) {
  if (number == 0) return " 0";
  const std::string sign = std::signbit(number) ? "-" : " ";
  if (std::isinf(number)) return sign + "1.#INF";
  if (std::isnan(number)) return sign + "1.#QNAN";
  const Decimal decimal = toDecimal(std::fabs(number));
  const bool fixed = decimal.exponent >= -4 && decimal.exponent < kSignificantDigits;
  return sign + (fixed ? fixedForm(decimal) : exponentForm(decimal));
}

std::string wholeNumberText(std::int64_t number) {
  return (number < 0 ? "" : " ") + std::to_string(number);
}

double value(std::string_view text) {
  // The characters that belong to the number, blanks left out.
  std::string number;
  bool point = false;
  bool exponent = false;
  bool digits = false;
  for (const char c : text) {
    if (c == ' ' || c == '\t') continue;
    const bool digit = c >= '0' && c <= '9';
    const bool sign = (c == '-' || c == '+') && (number.empty() || number.back() == 'e');
    if (digit) {
      digits = true;
    } else if (c == '.' && !point && !exponent) {
      point = true;
    } else if ((c == 'e' || c == 'E' || c == 'd' || c == 'D') && digits && !exponent) {
      exponent = true;
      number += 'e';
      continue;
    } else if (!sign) {
      break;
    }
    number += c;
  }
  std::string_view readable = number;
  if (readable.starts_with('+')) readable.remove_prefix(1);
  double result = 0;
  const auto parsed = std::from_chars(readable.data(), readable.data() + readable.size(), result);
  if (parsed.ec == std::errc::result_out_of_range) {
    const double size = isTiny(number) ? 0 : std::numeric_limits<double>::infinity();
    return readable.starts_with('-') ? -size : size;
  }
  return parsed.ec == std::errc{} ? result : 0;
}

float LineCount::asSingle(int offset) const {
  return static_cast<float>(std::min(lines_, kLastExactCount)) + static_cast<float>(offset);
}

}  // namespace norvik::text
