#include "json_check.h"

#include <charconv>

namespace norvik::fuzz {

namespace {

class JsonReader {
 public:
  explicit JsonReader(std::string_view json) : rest_(json) {}

  bool done() const { return rest_.empty(); }
  bool take(std::string_view token) {
    if (!rest_.starts_with(token)) return false;
    rest_.remove_prefix(token.size());
    return true;
  }

  std::optional<std::string> string() {
    if (!take("\"")) return std::nullopt;
    std::string bytes;
    while (!rest_.empty() && rest_.front() != '"') {
      const auto byte = rest_.front() == '\\' ? escaped() : plain();
      if (!byte) return std::nullopt;
      bytes += *byte;
    }
    if (!take("\"")) return std::nullopt;
    return bytes;
  }

  bool value() {
    if (rest_.starts_with('"')) return string().has_value();
    if (rest_.starts_with('{')) return object();
    if (rest_.starts_with('[')) return array();
    return take("true") || take("false") || take("null") || number();
  }

  bool object() {
    if (!take("{")) return false;
    if (take("}")) return true;
    do {
      if (!string() || !take(":") || !value()) return false;
    } while (take(","));
    return take("}");
  }

 private:
  bool array() {
    if (!take("[")) return false;
    if (take("]")) return true;
    do {
      if (!value()) return false;
    } while (take(","));
    return take("]");
  }

  bool digits() {
    const auto count = std::min(rest_.find_first_not_of("0123456789"), rest_.size());
    rest_.remove_prefix(count);
    return count > 0;
  }

  bool number() {
    take("-");
    if (!digits()) return false;
    if (take(".") && !digits()) return false;
    if (!take("e") && !take("E")) return true;
    if (!take("+")) take("-");
    return digits();
  }

  std::optional<char> plain() {
    const auto first = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    if (first < 0x20) return std::nullopt;
    if (first < 0x80) return static_cast<char>(first);
    // Two bytes of UTF-8 hold the characters from 128 to 255.
    if ((first != 0xC2 && first != 0xC3) || rest_.empty()) return std::nullopt;
    const auto second = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    if ((second & 0xC0U) != 0x80U) return std::nullopt;
    return static_cast<char>((first & 3U) << 6U | (second & 0x3FU));
  }

  std::optional<char> escaped() {
    rest_.remove_prefix(1);
    constexpr std::string_view kLetters = "\"\\/bfnrt";
    constexpr std::string_view kMeanings = "\"\\/\b\f\n\r\t";
    if (take("u")) {
      unsigned code = 0;
      const auto result = std::from_chars(
          rest_.data(), rest_.data() + std::min<std::size_t>(4, rest_.size()), code, 16);
      if (result.ptr != rest_.data() + 4 || code > 255) return std::nullopt;
      rest_.remove_prefix(4);
      return static_cast<char>(code);
    }
    if (rest_.empty()) return std::nullopt;
    const auto letter = kLetters.find(rest_.front());
    if (letter == std::string_view::npos) return std::nullopt;
    rest_.remove_prefix(1);
    return kMeanings[letter];
  }

  std::string_view rest_;
};

}  // namespace

std::optional<std::string> jsonBytes(std::string_view json) {
  JsonReader reader(json);
  auto bytes = reader.string();
  return reader.done() ? bytes : std::nullopt;
}

bool isJsonObject(std::string_view line) {
  JsonReader reader(line);
  return reader.object() && reader.done();
}

}  // namespace norvik::fuzz
