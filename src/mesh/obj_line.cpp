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

ObjLine LineNormaliser::operator()(std::string_view line) {
  using text::begins;
  using text::from;
  if (begins(line, " ")) line.remove_prefix(1);
  if (line.empty()) return {LineKind::other, line};

  switch (line.front()) {
    case 'v':
      if (begins(line, "vt\t")) return rewritten(LineKind::texturePoint, "vt ", from(line, 4));
      if (begins(line, "vt")) return {LineKind::texturePoint, line};
      if (begins(line, "v  ") || begins(line, "v\t ")) {
        return rewritten(LineKind::vertex, "v ", from(line, 4));
      }
      if (begins(line, "v\t")) return rewritten(LineKind::vertex, "v ", from(line, 3));
      return {begins(line, "v ") ? LineKind::vertex : LineKind::other, line};
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

std::string_view groupName(std::string_view line) {
  return text::from(line, kGroupNameColumn);
}

std::string_view materialName(std::string_view line) {
  return text::from(line, kMaterialNameColumn);
}

}  // namespace norvik::obj
