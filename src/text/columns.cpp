#include "text/columns.h"

#include <algorithm>

namespace norvik::text {

namespace {

constexpr char kCaseGap = 'a' - 'A';

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + kCaseGap) : c;
}
char raise(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - kCaseGap) : c;
}

}  // namespace

std::string_view leftmost(std::string_view text, std::size_t count) {
  return text.substr(0, count);
}

std::string_view rightmost(std::string_view text, std::size_t count) {
  return text.size() <= count ? text : text.substr(text.size() - count);
}

std::string_view from(std::string_view text, std::size_t column) {
  return column > text.size() ? std::string_view{} : text.substr(column - 1);
}

std::size_t column(std::string_view text, std::string_view token) {
  return text.find(token) + 1;  // npos + 1 is 0
}

bool holds(std::string_view text, std::string_view token) {
  return text.find(token) != std::string_view::npos;
}

bool begins(std::string_view text, std::string_view token) {
  return text.starts_with(token);
}

std::string_view before(std::string_view text, std::string_view token) {
  return text.substr(0, text.find(token));
}

std::string_view after(std::string_view text, std::string_view token) {
  const auto at = text.find(token);
  return at == std::string_view::npos ? text : text.substr(at + token.size());
}

std::string_view withoutLast(std::string_view text, std::size_t count) {
  return text.size() <= count ? std::string_view{} : text.substr(0, text.size() - count);
}

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string lowered(std::string_view text) {
  std::string result{text};
  std::transform(result.begin(), result.end(), result.begin(), lower);
  return result;
}

std::string raised(std::string_view text) {
  std::string result{text};
  std::transform(result.begin(), result.end(), result.begin(), raise);
  return result;
}

bool equalIgnoringCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return lower(a) == lower(b); });
}

std::string_view extension(std::string_view path) {
  return rightmost(path, 3);
}

std::vector<std::string> parts(std::string_view text, char divider) {
  std::vector<std::string> found;
  while (!text.empty()) {
    const std::size_t end = text.find(divider);
    found.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
    if (text.empty()) found.emplace_back();
  }
  return found;
}

std::string replaced(std::string_view text, char wanted, char replacement) {
  std::string result{text};
  std::replace(result.begin(), result.end(), wanted, replacement);
  return result;
}

}  // namespace norvik::text
