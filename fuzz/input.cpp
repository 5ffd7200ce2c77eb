#include "input.h"

#include "headless/json.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <iostream>

namespace norvik::fuzz {

namespace {

[[noreturn]] void complain(std::string_view what) {
  std::cerr << "finding: " << what << std::endl;
  std::abort();
}

std::string joined(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all += headless::jsonString(text) + "\n";
  return all;
}

}  // namespace

Input::Input(const std::uint8_t* data, std::size_t size) {
  const std::string all(data, data + size);
  const auto end = std::min(all.find('\n'), all.size());
  steering = all.substr(0, end);
  text = all.substr(std::min(end + 1, all.size()));
}

std::vector<std::string> Input::pieces(std::size_t count) const {
  std::vector<std::string> result(1);
  for (const char c : steering) {
    if (c == '|') {
      result.emplace_back();
    } else {
      result.back() += c;
    }
  }
  result.resize(std::max(result.size(), count));
  return result;
}

std::size_t numberIn(std::string_view piece, std::size_t least, std::size_t most) {
  std::size_t number = least;
  std::from_chars(piece.data(), piece.data() + piece.size(), number);
  return std::clamp(number, least, most);
}

void require(bool truth, std::string_view what) {
  if (!truth) complain(what);
}

void requireEqual(std::string_view found, std::string_view wanted, std::string_view what) {
  if (found == wanted) return;
  std::cerr << "found:  " << headless::jsonString(found)
            << "\nwanted: " << headless::jsonString(wanted) << '\n';
  complain(what);
}

void requireEqual(const std::vector<std::string>& found, const std::vector<std::string>& wanted,
                  std::string_view what) {
  if (found == wanted) return;
  std::cerr << "found:\n" << joined(found) << "wanted:\n" << joined(wanted);
  complain(what);
}

}  // namespace norvik::fuzz
