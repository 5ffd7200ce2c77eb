#pragma once
// The way into the installer, and out of it.
//
// MenuInstallCR2 takes the first CR2 out of the staging folder, "\cr2install" below the program
// folder, or out of a zip file. Then the lists of the main form make room for the files that the
// CR2 names. PictureCR2InstallCancel gives the room back; what was unpacked stays.

#include "front/session.h"
#include "front/view_before.h"

#include <string>

namespace norvik::install {

/// The main form while the installer has taken it over.
class InstallerView {
 public:
  explicit InstallerView(front::Opening& opening) : opening_(opening) {}

  /// Hides the panes' lists and boxes and shows the list of the files that a CR2 names.
  void open(const std::string& cr2);
  /// Shows again what was on view before; LabelOBJFileName has its caption back.
  void close();

 private:
  front::Opening& opening_;
  front::ViewBefore before_;
  std::string cr2_;
  std::string objFile_;  ///< what LabelOBJFileName said before
  bool open_ = false;
};

void wireInstallMenu(front::Session& session, InstallerView& view);

}  // namespace norvik::install
