#include "builders/geometry/geometry_blocks.h"

#include "text/columns.h"
#include "text/disk.h"
#include "text/number_text.h"

namespace norvik::builders {

AlternateGeometry alternateGeometry(std::string_view actor, std::string_view objPath) {
  std::string_view tail = text::after(objPath, "Geometries");
  if (tail.starts_with('\\')) tail.remove_prefix(1);
  return {std::string{text::before(actor, ":")},
          std::string{text::before(text::fileTitle(objPath), ".")}, std::string{tail}};
}

void writeGeometry(text::LineWriter& out, const AlternateGeometry& geometry) {
  const std::string name = geometry.actor + "_" + geometry.name;
  out.line("\talternateGeom ", name);
  out.line("\t\t{");
  out.line("\t\tname ", name);
  // A disk path, where figures have colons everywhere else.
  out.line("\t\tobjFile Runtime\\Geometries\\", geometry.tail);
  out.line("\t\t}");
}

void writeGeometryChannel(text::LineWriter& out, std::string_view actor, int count) {
  const std::string name{actor};
  out.line("\t\tgeomChan " + name + "Geom");
  out.line("\t\t\t{");
  out.line("\t\t\tuniqueInterp");
  out.line("\t\t\tname " + name + " type");
  out.line("\t\t\tinitValue 0");
  out.line("\t\t\thidden 0");
  out.line("\t\t\tforceLimits 4");
  out.line("\t\t\tmin 0");
  out.line(geometryCountLine(count));
  out.line("\t\t\ttrackingScale 0.045");
  out.line("\t\t\tkeys");
  out.line("\t\t\t\t{");
  out.line("\t\t\t\tstatic 1");
  out.line("\t\t\t\tk  0  0");
  out.line("\t\t\t\t}");
  out.line("\t\t\tinterpStyleLocked 1");
  out.line("\t\t\tstaticValue 0");
  out.line("\t\t\t}");
}

std::string geometryCountLine(int count) {
  return "\t\t\tmax" + text::wholeNumberText(count);
}

}  // namespace norvik::builders
