#include "builders/scenes/mtl_creator.h"

#include "figure/material_block.h"
#include "front/finished_file.h"
#include "text/first_dot.h"
#include "text/rewrite_pass.h"

namespace norvik::builders {

namespace {

constexpr std::string_view kScratch = "\\mtl.txt";

/// From the field's first blank on; empty without one.
std::string_view fromFirstBlank(std::string_view field) {
  return field.substr(std::min(field.find(' '), field.size()));
}

/// A map's file without its folders. A closing quote stays, as it stands.
std::string_view mapFile(std::string_view field) {
  const auto path = text::from(fromFirstBlank(field), 2);
  return path.substr(path.find_last_of(":\t") + 1);
}

/// Writes what a field of a material comes to, by its first two letters. Keys that begin with other
/// letters, also with small ones in place of capitals, come to nothing.
void writeKey(text::LineWriter& out, std::string_view field) {
  const auto key = text::leftmost(text::before(field, " "), 2);
  const bool noMap = text::holds(field, "NO_MAP");
  if (key == "Kd" || key == "Ka" || key == "Ks" || key == "Ns") {
    out.line(key, fromFirstBlank(field));
  } else if (key == "te" && !noMap) {
    out.line("map_Kd ", mapFile(field));
  } else if (key == "bu" && !noMap && !text::holds(field, "Strength")) {
    out.line("map_Bump ", mapFile(field));
  }
}

void writeLibrary(front::Session& session, const std::string& scratch) {
  text::RewritePass pass(session.disk, session.opening.OpenedPath, scratch);
  figure::passToFigure(pass.in());
  for (;;) {
    const auto field = pass.in().field();
    if (text::holds(field, "displayMode")) break;
    if (figure::isMaterialField(field)) {
      pass.out().line("newmtl ", figure::materialName(field));
    } else {
      writeKey(pass.out(), field);
    }
  }
  pass.finish();
}

void makeLibrary(front::Session& session) {
  const std::string& scene = session.opening.OpenedPath;
  if (text::extension(scene) != "pz3") {
    session.front.messageBox("PZ3 files only!", "Error!", front::kOk);
    return;
  }
  session.hourglass(true);
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  writeLibrary(session, scratch);
  const std::string library = text::throughFirstDot(scene, "mtl");
  session.disk.replace(scratch, library);
  session.hourglass(false);
  session.front.tellOf({.path = library});
  session.front.messageBox("New MTL file saved as " + library, "Note!", front::kOk);
}

}  // namespace

void wireMtlCreator(front::Session& session) {
  session.opening.MenuMakeMTL.clicked.add([&session] { makeLibrary(session); });
}

}  // namespace norvik::builders
