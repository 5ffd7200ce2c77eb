#include "install/entry_name.h"

#include "text/columns.h"

#include <algorithm>

namespace norvik::install {

namespace {

// The figures' own system takes a path of 260 characters; those in use have some ten steps.
constexpr std::size_t kMostSteps = 64;

}  // namespace

std::optional<std::vector<std::string>> entrySteps(std::string_view name) {
  const std::string divided = text::replaced(name, '\\', '/');
  if (divided.starts_with('/') || text::holds(divided, ":")) return std::nullopt;
  std::vector<std::string> steps = text::parts(divided, '/');
  std::erase_if(steps, [](const std::string& step) { return step.empty() || step == "."; });
  const bool climbs = std::find(steps.begin(), steps.end(), "..") != steps.end();
  if (climbs || steps.empty() || steps.size() > kMostSteps) return std::nullopt;
  return steps;
}

std::string numberedName(std::string_view name, int number) {
  const std::size_t dot = name.find_last_of('.');
  const std::size_t end = dot == std::string_view::npos || dot == 0 ? name.size() : dot;
  return std::string{name.substr(0, end)} + " (" + std::to_string(number) + ")" +
         std::string{name.substr(end)};
}

}  // namespace norvik::install
