#pragma once
// The file dialogs of a form, which remember their last file name.

#include "front/front_end.h"

#include <string>
#include <string_view>

namespace norvik::front {

/// What a dialog says: what the file is for, which is its title where it has no other, the kinds of
/// files it may be, and a hint. None of it changes what can be chosen.
struct DialogWords {
  std::string_view purpose{};
  std::string_view filter{};
  std::string_view hint{};
};

inline constexpr std::string_view kFigureFilter =
    "Poser files and meshes|*.cr2;*.pz3;*.pp2;*.hr2;*.fc2;*.pz2;*.obj;*.mtl;*.bmp|"
    "Figures (CR2)|*.cr2|All files|*.*";
inline constexpr std::string_view kCharacterFilter = "Figures (CR2)|*.cr2|All files|*.*";
inline constexpr std::string_view kMeshFilter = "Meshes (OBJ)|*.obj|All files|*.*";
inline constexpr std::string_view kSceneFilter = "Scenes (PZ3)|*.pz3|All files|*.*";
inline constexpr std::string_view kPoseFilter = "Poses (PZ2)|*.pz2|All files|*.*";
inline constexpr std::string_view kPhiFilter = "Hierarchies (PHI)|*.phi|All files|*.*";
inline constexpr std::string_view kMapFilter =
    "Pictures|*.jpg;*.jpeg;*.bmp;*.png;*.tif;*.tiff;*.bum;*.gif;*.tga|All files|*.*";

/// A file dialog of the main form. Between uses it keeps its last file name, which tools rely on:
/// one that does not ask for a cancel takes that name again.
class CommonDialog {
 public:
  explicit CommonDialog(std::string_view name) : name_(name) {}

  const std::string& fileName() const { return fileName_; }
  /// The last name of the path, without its folder.
  std::string_view fileTitle() const;
  void setFileName(std::string_view fileName) { fileName_ = fileName; }
  void setFilter(std::string_view filter) { filter_ = filter; }

  /// Shows the dialog for opening, in a folder, with its last file name. Whether it was accepted;
  /// after a cancel the file name is what it was.
  bool open(FrontEnd& front, std::string_view folder, std::string_view title = {},
            const DialogWords& words = {});
  /// Shows it for saving, with a proposed name.
  bool save(FrontEnd& front, std::string_view folder, std::string_view proposed,
            std::string_view title = {}, const DialogWords& words = {});

 private:
  bool show(FrontEnd& front, FileDialog::Kind kind, std::string_view title, std::string_view folder,
            const DialogWords& words);

  std::string name_;
  std::string fileName_;
  std::string filter_;
};

}  // namespace norvik::front
