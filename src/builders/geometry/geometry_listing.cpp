#include "builders/geometry/geometry_listing.h"

#include "builders/geometry/geometry_blocks.h"
#include "text/line_search.h"

namespace norvik::builders {

namespace {

using text::atStart;

/// What stands behind the first blank of a line.
std::string valueOf(std::string_view line) {
  return text::holds(line, " ") ? std::string{text::after(line, " ")} : std::string{};
}

ListedGeometry readGeometry(text::LineReader& in, std::string_view firstLine) {
  ListedGeometry geometry{valueOf(firstLine), {}};
  for (;;) {
    const auto line = in.line();
    if (line == kGeometryEnd) return geometry;
    if (text::holds(line, "objFile")) geometry.obj = valueOf(line);
  }
}

void passToAlternates(text::LineReader& in, const std::string& actorLine) {
  for (int block = 0; block < 2; ++block) {
    text::passThrough(in, {atStart(actorLine)},
                      [&](std::string_view line) { return line == actorLine; });
  }
  text::passThrough(in, {atStart(kGeometryParent)},
                    [](std::string_view line) { return text::begins(line, kGeometryParent); });
}

}  // namespace

std::vector<ListedGeometry> listGeometries(const text::Disk& disk, std::string_view path,
                                           std::string_view actor) {
  const bool prop = text::extension(path) == "pp2";
  text::LineReader in(disk, path);
  std::vector<ListedGeometry> geometries;
  try {
    passToAlternates(in, (prop ? "prop " : "actor ") + std::string{actor});
    std::string line{in.line()};
    while (text::begins(line, kGeometryLine)) {
      geometries.push_back(readGeometry(in, line));
      line = in.line();
    }
  } catch (const text::FileError& error) {
    if (error.number() != text::ErrorNumber::inputPastEnd) throw;
  }
  return geometries;
}

}  // namespace norvik::builders
