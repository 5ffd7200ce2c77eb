#include "mesh/obj_number.h"

#include "text/file_error.h"
#include "text/number_text.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace norvik::obj {

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t';
}
bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

std::string_view firstWord(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  std::size_t length = 0;
  while (length < text.size() && !isBlank(text[length])) ++length;
  return text.substr(0, length);
}

/// Whether a word begins as a number does; "-inf" and "nan" do not.
bool beginsAsNumber(std::string_view word) {
  if (!word.empty() && word.front() == '-') word.remove_prefix(1);
  return !word.empty() && (isDigit(word.front()) || word.front() == '.');
}

double numberOf(std::string_view word) {
  // Nearly every word is a plain number from end to end; the others take the classic rule.
  double number = 0;
  if (beginsAsNumber(word)) {
    const char* const end = word.data() + word.size();
    const auto parsed = std::from_chars(word.data(), end, number);
    if (parsed.ec == std::errc{} && parsed.ptr == end) return number;
  }
  return text::value(word);
}

}  // namespace

double leadingNumber(std::string_view text) {
  return numberOf(firstWord(text));
}

float toSingle(double number) {
  const auto single = static_cast<float>(number);
  if (!std::isfinite(single)) throw text::FileError(text::ErrorNumber::overflow);
  return single;
}

float leadingSingle(std::string_view text) {
  return toSingle(leadingNumber(text));
}

std::size_t leadingIndex(std::string_view text) {
  constexpr std::size_t kPlainDigits = 9;
  if (!text.empty() && text.size() <= kPlainDigits) {
    std::size_t index = 0;
    const char* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, index);
    if (parsed.ec == std::errc{} && parsed.ptr == end) return index;
  }
  constexpr double kBeyondAnyCount = 1e15;
  const double number = std::nearbyint(leadingNumber(text));
  return number > 0 && number < kBeyondAnyCount ? static_cast<std::size_t>(number) : 0;
}

}  // namespace norvik::obj
