#include "install/target_folders.h"

#include "figure/poser_path.h"
#include "front/poser_location.h"
#include "install/staging.h"

namespace norvik::install {

namespace {

constexpr std::string_view kStartup = "Startup";
constexpr std::string_view kUnset = "0";

/// The folder that a line names below Poser's, from its first "Runtime" to its last divider.
std::string folderOf(const std::string& poser, std::string_view line) {
  const std::string path = figure::pathBelow(poser, line, "Runtime");
  const auto last = path.find_last_of('\\');
  if (path.empty() || last == std::string::npos || last < poser.size()) return {};
  return path.substr(0, last);
}

/// The folder of Poser's own textures, by the number in its folder's name; empty without one.
std::string ownTextures(const std::string& poser) {
  for (const char* const number : {"4", "3"}) {
    if (!text::holds(poser, number)) continue;
    return poser + "Runtime\\textures\\Poser " + number + " Textures";
  }
  return {};
}

/// Each line has its say, so that the last one decides: also one that names no texture at all sends
/// the textures to Poser's own.
void readTargets(front::Opening& opening, const std::string& poser) {
  front::Label& textures = opening.LabelTexPathCR2Install;
  front::Label& geometry = opening.LabelObjPathCR2Install;
  textures.setCaption("");
  geometry.setCaption("");
  for (const std::string& item : opening.ListboxListCR2Files.items()) {
    const std::string folder = folderOf(poser, item);
    const bool namesTexture = text::holds(item, "Textures");
    const std::string forTextures = namesTexture ? folder : ownTextures(poser);
    if (!forTextures.empty()) textures.setCaption(forTextures);
    if (text::holds(item, "eometries") && !folder.empty()) geometry.setCaption(folder);
  }
}

/// Goes to the library folder of the figure, which is made if it is missing.
void enterLibrary(front::Session& session, const std::string& poser) {
  constexpr std::string_view kGeometries = "Geometries\\";
  session.disk.changeFolder(poser + "Runtime\\Libraries");
  const std::string geometry = session.opening.LabelObjPathCR2Install.caption() + "\\";
  std::string library = poser + "Runtime\\Libraries\\Characters";
  if (text::holds(geometry, kGeometries)) {
    library = inFolder(library, text::after(geometry, kGeometries));
  }
  if (!session.disk.folderExists(library)) makeEveryLevel(session.disk, library);
  session.disk.changeFolder(library);
}

void pickPlaces(front::Session& session, FormCR2Install& form) {
  front::Opening& opening = session.opening;
  const std::string program = session.settings.get(kStartup, "NorvikLoc", kUnset);
  front::readPoserLocation(session);
  const std::string& poser = opening.PoserLocation;
  opening.LabelRtDir.setCaption(program == kUnset ? stagingFolder(opening)
                                                  : inFolder(program, "cr2install"));
  readTargets(opening, poser);
  if (opening.LabelTexPathCR2Install.caption().empty()) {
    session.front.messageBox(
        "There is no location for the texture files listed in the CR2, or the path is invalid.  "
        "The "
        "textures will be put with the CR2 for this file.",
        "Note!", front::kOk);
  }
  opening.LabelNLen.setCaption(std::to_string((poser + "Runtime").size()));
  enterLibrary(session, poser);
  session.loadModal(form);
}

}  // namespace

void wireTargetFolders(front::Session& session, FormCR2Install& form) {
  session.opening.PictureInstallCR2.clicked.add([&session, &form] { pickPlaces(session, form); });
  form.loading.add([&session, &form] {
    form.restoreStart();
    const std::string& folder = session.disk.currentFolder();
    form.DirCR2Install.setPath(folder);
    form.DriveCR2Install.setPath(text::raised(text::leftmost(folder, 2)));
    form.setFocus(form.DirCR2Install);
  });
}

}  // namespace norvik::install
