#pragma once

#include "output_file.h"
#include "units.h"

#include <charconv>
#include <concepts>
#include <filesystem>
#include <string>
#include <string_view>

namespace norvik::examples {

inline constexpr std::string_view crLf = "\r\n";

// Lines of a library file, each indented by tabs. Numbers print the same whatever the locale.
class TextFile {
 public:
  explicit TextFile(const std::filesystem::path& path, std::string_view lineEnd = crLf)
      : file_(path), lineEnd_(lineEnd) {}

  // Example: line(3, "indexes ", count) writes three tabs, the key, the number and the line end.
  template <typename... Pieces>
  void line(std::size_t tabs, const Pieces&... pieces) {
    file_.put(std::string_view("\t\t\t\t\t\t\t\t").substr(0, tabs));
    (put(pieces), ...);
    file_.put(lineEnd_);
  }

  [[nodiscard]] std::uint64_t size() const { return file_.size(); }
  void finish() { file_.finish(); }

 private:
  void put(std::string_view text) { file_.put(text); }
  void put(const Point& point) {
    put(Short{point.x});
    put(" ");
    put(Short{point.y});
    put(" ");
    put(Short{point.z});
  }

  template <std::integral Number>
  void put(Number number) {
    char digits[24];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
    file_.put({digits, static_cast<std::size_t>(end.ptr - digits)});
  }

  void put(Fixed8 number) { putDecimal(number.value, 8, false); }
  void put(Short number) { putDecimal(number.value / 100, 6, true); }

  void putDecimal(Units value, int decimals, bool cutsZeros) {
    char digits[32];
    char* const end = digits + sizeof digits;
    char* behind = end;
    char* first = end;
    Units rest = value < 0 ? -value : value;
    for (int i = 0; i < decimals; ++i, rest /= 10) *--first = static_cast<char>('0' + rest % 10);
    if (cutsZeros) {
      while (behind != first && behind[-1] == '0') --behind;
    }
    if (behind != first) *--first = '.';
    do {
      *--first = static_cast<char>('0' + rest % 10);
      rest /= 10;
    } while (rest != 0);
    if (value < 0) *--first = '-';
    file_.put({first, static_cast<std::size_t>(behind - first)});
  }

  OutputFile file_;
  std::string lineEnd_;
};

}  // namespace norvik::examples
