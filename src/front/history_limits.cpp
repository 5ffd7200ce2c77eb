#include "front/history_limits.h"

#include <algorithm>
#include <charconv>

namespace norvik::front {

namespace {

constexpr std::string_view kSection = "History";
constexpr std::uint64_t kMegabyte = std::uint64_t{1} << 20U;

std::uint64_t number(const Settings& settings, std::string_view key, std::uint64_t otherwise) {
  const std::string text = settings.get(kSection, key, "");
  std::uint64_t value = 0;
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value);
  return result.ec == std::errc{} && result.ptr == end ? value : otherwise;
}

}  // namespace

text::History::Limits historyLimits(const Settings& settings) {
  constexpr std::uint64_t kMostMegabytes = std::uint64_t{1} << 40U;
  text::History::Limits limits;
  limits.entries = number(settings, "Entries", limits.entries);
  const std::uint64_t megabytes = number(settings, "Megabytes", limits.bytes / kMegabyte);
  limits.bytes = std::min(megabytes, kMostMegabytes) * kMegabyte;
  return limits;
}

}  // namespace norvik::front
