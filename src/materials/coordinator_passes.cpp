#include "materials/coordinator_passes.h"

#include "figure/material_block.h"
#include "text/line_search.h"

namespace norvik::materials {

namespace {

using text::anywhere;
using text::atStart;

constexpr std::string_view kWeld = "weld";
constexpr std::string_view kPreset = "preset";
constexpr std::string_view kDisplayMode = "displayMode";

/// The line without its indent.
std::string_view unindented(std::string_view line) {
  return line.substr(std::min(line.find_first_not_of(" \t"), line.size()));
}

bool isPreview(std::string_view line) {
  const auto field = unindented(line);
  return figure::isMaterialField(field) && figure::materialName(field) == figure::kPreview;
}

/// The pass that removes.
class Removal {
 public:
  Removal(text::RewritePass& pass, const Names& removed, bool withPresets)
      : pass_(pass), removed_(removed), withPresets_(withPresets) {}

  void run() {
    static const text::LineFilter tested{anywhere(figure::kMaterial), anywhere(kPreset)};
    std::string line = copyWelds();
    for (;;) {
      while (goes(line)) line = passBlock();
      pass_.out().line(line);
      pass_.copyLines(tested);
      if (pass_.in().atEnd()) return;
      line = pass_.in().line();
    }
  }

 private:
  /// The line behind the welds.
  std::string copyWelds() {
    text::copyThrough(pass_, {anywhere(kWeld)}, text::holding(kWeld));
    for (;;) {
      const auto line = pass_.in().line();
      if (!text::holds(line, kWeld)) return std::string{line};
      pass_.out().line(line);
    }
  }

  bool goes(std::string_view line) const {
    if (withPresets_ && text::holds(line, kPreset)) return true;
    return text::holds(line, figure::kMaterial) && !text::holds(line, "Material") &&
           !isPreview(line) && figure::endsInOneOf(line, removed_);
  }

  /// The line in front of which the block ends; it is tested anew.
  std::string passBlock() {
    static const text::LineFilter ends{anywhere(figure::kMaterial), anywhere(kPreset),
                                       anywhere(kDisplayMode)};
    return text::passThrough(pass_.in(), ends, [](std::string_view line) {
      return text::holds(line, figure::kMaterial) || figure::endsMaterials(line);
    });
  }

  text::RewritePass& pass_;
  const Names& removed_;
  bool withPresets_;
};

void writeBlocks(text::LineWriter& out, const Names& names) {
  for (const std::string& name : names) {
    figure::writeDefaultMaterial(out, name);
    out.line("");
  }
}

}  // namespace

void removeMaterials(text::Disk& disk, const std::string& figure, const std::string& scratch,
                     const Names& removed, bool withPresets) {
  text::RewritePass pass(disk, figure, scratch);
  Removal(pass, removed, withPresets).run();
  pass.finish();
}

void addMaterials(text::Disk& disk, const std::string& figure, const std::string& scratch,
                  const Names& added) {
  static const text::LineFilter places{atStart(figure::kMaterialLine), anywhere(kDisplayMode)};
  const auto isMode = text::holding(kDisplayMode);
  text::RewritePass pass(disk, figure, scratch);
  text::copyThrough(pass, {anywhere("figure")},
                    [](std::string_view line) { return unindented(line) == "figure"; });
  const std::string place = text::copyUpTo(pass, places, [&](std::string_view line) {
    return figure::isMaterialLine(line) || isMode(line);
  });
  writeBlocks(pass.out(), added);
  pass.out().line(place);
  if (!isMode(place)) text::copyThrough(pass, {anywhere(kDisplayMode)}, isMode);
  pass.copyRest();
  pass.finish();
}

}  // namespace norvik::materials
