#include "figure/path_pass.h"

#include "text/columns.h"
#include "text/rewrite_pass.h"

namespace norvik::figure {

namespace {

using text::anywhere;

constexpr std::string_view kReference = "figureResFile";
constexpr std::string_view kMainMaterial = "material skin";
constexpr std::string_view kMaterialsEnd = "presetMaterial";
constexpr std::string_view kTexture = "textureMap";
constexpr int kMostReferences = 2;

/// A kind of map line whose label turns clean when one is met.
struct MapLine {
  std::string_view keyword;
  std::size_t keptWidth;
  const std::string& slot;
  front::Label& label;
};

void copyUpToMainMaterial(front::Opening& opening, text::RewritePass& pass,
                          const std::string& objLine) {
  static const text::LineFilter stops{anywhere(kMainMaterial), anywhere(kReference)};
  int replacedLines = 0;
  while (!pass.in().atEnd()) {
    pass.copyLines(stops);
    if (pass.in().atEnd()) return;
    const auto line = pass.in().line();
    const bool reached = text::holds(line, kMainMaterial);
    if (text::holds(line, kReference) && replacedLines < kMostReferences && !objLine.empty()) {
      pass.out().line(objLine);
      opening.LabelMainOBJPath.setFore(front::kPathClean);
      ++replacedLines;
    } else {
      pass.out().line(line);
    }
    if (reached) return;
  }
}

void copyMaterials(front::Opening& opening, text::RewritePass& pass, PathSlots& slots) {
  static const text::LineFilter stops{anywhere("transparencyMap"), anywhere("reflectionMap"),
                                      anywhere("bumpMap"), anywhere(kTexture),
                                      anywhere(kMaterialsEnd)};
  const MapLine mapLines[] = {{"transparencyMap", 17, slots.transparency, opening.LabelMainTrans},
                              {"reflectionMap", 15, slots.reflection, opening.LabelMainReflect},
                              {"bumpMap", 9, slots.bump, opening.LabelMainBump}};
  constexpr std::size_t kTextureWidth = 12;

  while (!pass.in().atEnd()) {
    pass.copyLines(stops);
    if (pass.in().atEnd()) return;
    std::string line{pass.in().line()};
    bool reached = text::holds(line, kMaterialsEnd);
    // Each test looks at the line as the tests before left it.
    for (const MapLine& map : mapLines) {
      if (!text::holds(line, map.keyword)) continue;
      if (!map.slot.empty()) line = std::string{text::leftmost(line, map.keptWidth)} + map.slot;
      map.label.setFore(front::kPathClean);
    }
    if (line == kTexture) {
      // The value stands on the next line; once it is written, later textures stay as they are.
      pass.out().line(line);
      line = pass.in().line();
      reached = text::holds(line, kMaterialsEnd);
      if (!slots.texture.empty()) line = std::exchange(slots.texture, {});
    } else if (text::holds(line, kTexture) && !slots.texture.empty()) {
      line = std::string{text::leftmost(line, kTextureWidth)} + slots.texture;
    }
    pass.out().line(line);
    if (reached) return;
  }
}

}  // namespace

PathSlots editedPaths(const front::Opening& opening) {
  const auto edited = [](const front::Label& label, const front::TextBox& box) {
    return label.fore() == front::kPathEdited ? box.text() : std::string{};
  };
  return {edited(opening.LabelMainOBJPath, opening.TextMainOBJ),
          edited(opening.LabelMainTex, opening.TextMainTex),
          edited(opening.LabelMainReflect, opening.TextMainReflect),
          edited(opening.LabelMainBump, opening.TextMainBump),
          edited(opening.LabelMainTrans, opening.TextMainTrans)};
}

void passPaths(front::Session& session, PathSlots slots) {
  front::Opening& opening = session.opening;
  text::RewritePass pass(session.disk, opening.OpenedPath, opening.inProgramFolder(kPathScratch));
  copyUpToMainMaterial(opening, pass, slots.obj);
  copyMaterials(opening, pass, slots);
  pass.copyRest();
  pass.finish();
}

}  // namespace norvik::figure
