#include "channels/mirror/mirrored_delta.h"

#include "channels/mirror/blank_parts.h"
#include "text/columns.h"
#include "text/file_error.h"

#include <vector>

namespace norvik::channels {

namespace {

constexpr std::size_t kDeltaColumn = 5;

void negate(std::string& number) {
  if (number.starts_with('-')) {
    number.erase(0, 1);
  } else {
    number.insert(0, 1, '-');
  }
}

}  // namespace

bool isDelta(std::string_view line) {
  return text::column(line, "d") == kDeltaColumn;
}

std::string mirroredDelta(std::string_view line, const MirroredAxes& axes, std::string_view path) {
  constexpr std::size_t kIndexAndNumbers = 4;
  std::vector<std::string> parts;
  auto rest = text::from(line, kDeltaColumn + 1);
  for (auto part = takePart(rest); !part.empty(); part = takePart(rest)) parts.emplace_back(part);
  if (parts.size() < kIndexAndNumbers) {
    throw text::FileError(text::ErrorNumber::inputPastEnd, path, text::FileAct::reading);
  }
  if (axes.x) negate(parts[1]);
  if (axes.y) negate(parts[2]);
  if (axes.z) negate(parts[3]);
  std::string result{text::leftmost(line, kDeltaColumn)};
  for (const std::string& part : parts) result += " " + part;
  return result;
}

}  // namespace norvik::channels
