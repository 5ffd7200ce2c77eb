#include "text/history_entry.h"

#include <array>
#include <charconv>
#include <map>

namespace norvik::text {

namespace {

constexpr std::string_view kEnd = "end\n";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr int kOctal = 8;
constexpr auto kLosses = std::to_array<Loss>({Loss::replaced, Loss::deleted, Loss::changed});

std::string escaped(std::string_view value) {
  std::string result;
  for (const char c : value) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= ' ' && c != '%') {
      result += c;
    } else {
      result += '%';
      result += kHexDigits[byte >> 4U];
      result += kHexDigits[byte & 0xFU];
    }
  }
  return result;
}

std::string unescaped(std::string_view value) {
  constexpr std::size_t kEscape = 3;
  std::string result;
  while (!value.empty()) {
    const auto high = value.size() < kEscape ? std::string_view::npos : kHexDigits.find(value[1]);
    const auto low = value.size() < kEscape ? std::string_view::npos : kHexDigits.find(value[2]);
    const bool escape = value[0] == '%' && high < kHexDigits.size() && low < kHexDigits.size();
    result += escape ? static_cast<char>(high << 4U | low) : value[0];
    value.remove_prefix(escape ? kEscape : 1);
  }
  return result;
}

template <typename Number>
bool readNumber(std::string_view text, Number& number, int base = 10) {
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number, base);
  return result.ec == std::errc{} && result.ptr == end;
}

std::string octal(unsigned mode) {
  std::array<char, 16> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), mode, kOctal);
  return {digits.data(), result.ptr};
}

}  // namespace

std::string_view lossName(Loss loss) {
  switch (loss) {
    case Loss::replaced:
      return "replaced";
    case Loss::deleted:
      return "deleted";
    case Loss::changed:
      return "changed";
  }
  return "";
}

std::string historyText(const HistoryEntry& entry) {
  std::string text;
  const auto add = [&text](std::string_view name, std::string_view value) {
    text.append(name).append(": ").append(escaped(value)).append("\n");
  };
  add("when", entry.when);
  add("tool", entry.tool);
  add("what", lossName(entry.what));
  add("path", entry.path);
  add("host", entry.hostPath);
  add("file", entry.file);
  add("size", std::to_string(entry.size));
  add("mode", octal(entry.mode));
  return text.append(kEnd);
}

std::optional<HistoryEntry> parseHistoryText(std::string_view text) {
  if (!text.ends_with(kEnd)) return std::nullopt;
  std::map<std::string, std::string, std::less<>> values;
  while (!text.empty()) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(line.size() + 1);
    const auto colon = line.find(": ");
    if (colon == std::string_view::npos) continue;
    values[std::string{line.substr(0, colon)}] = unescaped(line.substr(colon + 2));
  }
  HistoryEntry entry;
  entry.when = values["when"];
  entry.tool = values["tool"];
  entry.path = values["path"];
  entry.hostPath = values["host"];
  entry.file = values["file"];
  bool known = false;
  for (const Loss loss : kLosses) {
    if (values["what"] != lossName(loss)) continue;
    entry.what = loss;
    known = true;
  }
  // The name must not lead out of the entry's folder.
  const bool named = !entry.file.empty() && entry.file.find('/') == std::string::npos &&
                     entry.file != "." && entry.file != "..";
  const bool whole = known && named && entry.hostPath.starts_with('/') &&
                     readNumber(values["size"], entry.size) &&
                     readNumber(values["mode"], entry.mode, kOctal);
  if (!whole) return std::nullopt;
  return entry;
}

}  // namespace norvik::text
