#include "install/move_plan.h"

#include "install/staging.h"
#include "text/first_dot.h"

#include <algorithm>
#include <initializer_list>

namespace norvik::install {

namespace {

bool isOneOf(std::string_view extension, std::initializer_list<std::string_view> extensions) {
  return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

StagedMove to(const std::string& folder, std::string_view name) {
  if (folder.empty()) return {};
  return {StagedMove::Kind::move, folder, inFolder(folder, name)};
}

}  // namespace

InstallPlaces InstallPlaces::of(const front::Opening& opening, const std::string& library) {
  const std::string& staging = opening.LabelRtDir.caption();
  const std::string& textures = opening.LabelTexPathCR2Install.caption();
  // Without a folder in front of them the files would be those of the drive's root.
  return {staging.empty() ? stagingFolder(opening) : staging,
          std::string{text::fileTitle(opening.LabelOBJFileName.caption())}, library,
          opening.LabelObjPathCR2Install.caption(), textures.empty() ? library : textures};
}

std::string InstallPlaces::named(std::string_view ending) const {
  return text::throughFirstDot(figure, ending);
}

StagedMove moveOf(const InstallPlaces& places, std::string_view name) {
  const std::string_view extension = text::extension(name);
  if (isOneOf(extension, {"obj", "mtl"})) return to(places.geometry, places.named(extension));
  if (isOneOf(extension, {"rsr", "pz2"})) return to(places.library, name);
  if (isOneOf(extension, {"tif", "iff", "bmp", "jpg", "png", "bum"})) {
    return to(places.textures, name);
  }
  const bool stays = isOneOf(extension, {"Lst", "lst", "txt", "zip", "sit"});
  return {stays ? StagedMove::Kind::leave : StagedMove::Kind::report};
}

}  // namespace norvik::install
