#include "mesh/obj_line.h"

#include "text/columns.h"

namespace norvik::obj {

namespace {

constexpr std::size_t kGroupNameColumn = 3;
constexpr std::size_t kMaterialNameColumn = 8;

}  // namespace

ObjLine LineNormaliser::rewritten(LineKind kind, std::string_view start, std::string_view rest) {
  rewritten_.assign(start).append(rest);
  return {kind, rewritten_};
}

/// A line that begins "v" and is no texture point.
ObjLine LineNormaliser::vertex(std::string_view line) {
  constexpr std::size_t kFirstOfX = 3;
  std::string_view rest = text::from(line, kFirstOfX);
  const bool tab = text::begins(line, "v\t");
  if (!tab && !text::begins(line, "v ")) return {LineKind::other, line};
  const bool one = text::begins(rest, " ") && behindVertex_ == DoubleBlank::dropped;
  if (one) rest.remove_prefix(1);
  if (!tab && !one) return {LineKind::vertex, line};
  return rewritten(LineKind::vertex, "v ", rest);
}

ObjLine LineNormaliser::operator()(std::string_view line) {
  using text::begins;
  using text::from;
  if (begins(line, " ")) line.remove_prefix(1);
  if (line.empty()) return {LineKind::other, line};

  switch (line.front()) {
    case 'v':
      if (begins(line, "vt\t")) return rewritten(LineKind::texturePoint, "vt ", from(line, 4));
      if (begins(line, "vt")) return {LineKind::texturePoint, line};
      return vertex(line);
    case 'g':
      return {LineKind::group, line};
    case 'u':
      return {begins(line, "use") ? LineKind::material : LineKind::other, line};
    case 'f': {
      // "fo" first: what it leaves behind may be a tab.
      const bool wordy = begins(line, "fo");
      const std::string_view rest = from(line, wordy ? 3 : 2);
      if (begins(rest, "\t") || (wordy && begins(rest, " "))) {
        return rewritten(LineKind::face, "f ", rest.substr(1));
      }
      return {begins(rest, " ") ? LineKind::face : LineKind::other, line};
    }
    default:
      return {LineKind::other, line};
  }
}

std::string_view withoutTabs(std::string_view line, std::string& buffer) {
  if (text::begins(line, " ")) line.remove_prefix(1);
  for (const std::string_view start : {"v\t", "vt\t"}) {
    if (!text::begins(line, start)) continue;
    buffer.assign(line);
    buffer[start.size() - 1] = ' ';
    return buffer;
  }
  return line;
}

std::string_view groupName(std::string_view line) {
  return text::from(line, kGroupNameColumn);
}

std::string_view materialName(std::string_view line) {
  return text::from(line, kMaterialNameColumn);
}

}  // namespace norvik::obj
