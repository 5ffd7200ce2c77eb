// Colours of materials, and the coordinator of a figure and its mesh.

#include "bench_desk.h"
#include "materials/colour_pass.h"
#include "materials/coordinated_lists.h"
#include "materials/coordinator_passes.h"
#include "pass_groups.h"

namespace norvik::bench {

namespace {

void changeColour(Bench& bench) {
  const auto position = materials::findMaterial(bench.disk, bench.path, "skin");
  mustHold(position.has_value(), "no skin");
  materials::writeColour(bench.disk, bench.path, "C:\\recoloured.cr2", "KdColor", 0, *position);
}

void listMaterials(Bench& bench) {
  materials::FormMatCoord form;
  materials::listFigureMaterials(form, bench.disk, bench.path);
  mustHold(form.ListCR2Mat.count() > 0, "no materials");
}

void removeMaterials(Bench& bench) {
  materials::removeMaterials(bench.disk, bench.path, "C:\\f.new", {"lips"}, true);
}

void addMaterials(Bench& bench) {
  materials::addMaterials(bench.disk, bench.path, "C:\\f.new", {"lips"});
}

}  // namespace

std::vector<Pass> materialPasses() {
  using enum Kind;
  using enum Figure;
  return {pass("colour of a material", readAndRewrite, plain, changeColour),
          pass("list of materials", read, plain, listMaterials),
          pass("removal of materials", rewrite, plain, removeMaterials),
          pass("addition of materials", rewrite, plain, addMaterials)};
}

}  // namespace norvik::bench
