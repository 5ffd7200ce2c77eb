#include "install/move_preview.h"

#include "install/staging.h"
#include "text/columns.h"
#include "text/file_names.h"

#include <set>

namespace norvik::install {

namespace {

/// Follows an installation in its order without moving anything.
class Preview {
 public:
  Preview(const text::Disk& disk, const InstallPlaces& places) : disk_(disk), places_(places) {}

  std::vector<MovePreview> of(const std::vector<std::string>& names) {
    std::vector<MovePreview> rows(names.size());
    // The figure and the mesh of its name go first.
    for (std::size_t i = 0; i < names.size(); ++i) {
      if (isFigure(names[i])) rows[i] = to(names[i], places_.library, names[i]);
      const bool firstMesh = text::sameName(names[i], places_.named("obj"));
      if (firstMesh && !places_.geometry.empty()) {
        rows[i] = to(names[i], places_.geometry, places_.named("obj"));
      }
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
      if (rows[i].name.empty()) rows[i] = rowOf(names[i]);
    }
    return rows;
  }

 private:
  bool isFigure(const std::string& name) const { return text::sameName(name, places_.figure); }

  MovePreview to(const std::string& name, const std::string& folder, const std::string& newName) {
    const std::string target = inFolder(folder, newName);
    const bool taken = disk_.exists(target) || disk_.folderExists(target);
    if (taken || !coming_.insert(text::foldedName(target)).second) {
      return {name, {}, {}, "stays: " + folder + " has a " + newName + " already"};
    }
    return {name, folder, newName};
  }

  MovePreview rowOf(const std::string& name) {
    const StagedMove move = moveOf(places_, name);
    if (move.kind == StagedMove::Kind::move) {
      return to(name, move.folder, std::string{text::fileTitle(move.target)});
    }
    if (move.kind == StagedMove::Kind::leave) return {name, {}, {}, "stays: no part of the figure"};
    return {name, {}, {}, whyReported(name)};
  }

  std::string whyReported(const std::string& name) const {
    const std::string_view extension = text::extension(name);
    const std::string small = text::lowered(extension);
    if (small == "cr2") return "stays: a figure of its own, for the next run";
    if (extension == "obj" || extension == "mtl") return "stays: the figure names no geometry";
    const bool hasPlace = moveOf(places_, small).kind != StagedMove::Kind::report;
    if (small != extension && hasPlace) return "stays: its ending is in capitals";
    return "stays: no place for such a file";
  }

  const text::Disk& disk_;
  const InstallPlaces& places_;
  std::set<std::u32string> coming_;
};

}  // namespace

std::vector<MovePreview> previewMoves(const text::Disk& disk, const InstallPlaces& places) {
  std::vector<std::string> names;
  text::ignoringErrors([&] { names = disk.matching(inFolder(places.staging, "*.*")); });
  return Preview(disk, places).of(names);
}

}  // namespace norvik::install
