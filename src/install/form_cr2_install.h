#pragma once
// FormCR2Install: where in the library the figure goes.

#include "front/file_lists.h"
#include "front/form.h"
#include "front/form_start.h"
#include "front/list_box.h"
#include "front/text_controls.h"

namespace norvik::install {

class FormCR2Install : public front::Form {
 public:
  FormCR2Install() : Form("FormCR2Install", "CR2 Installer") {
    TextNewDir.hide();
    ListCR2Install.hide();
    start_.remember(*this);
    static_cast<void>(takeChanges());
  }

  /// Gives everything the state in which the form is shown.
  void restoreStart() { start_.restore(); }

  front::Label LabelHint{*this, "LabelHint", "Open a folder to place the CR2 file and hit enter"};
  /// The picked folder of the library; Enter installs.
  front::FolderList DirCR2Install{*this, "DirCR2Install"};
  front::DriveList DriveCR2Install{*this, "DriveCR2Install", &DirCR2Install};
  /// Shows TextNewDir.
  front::Label LabelNewDir{*this, "LabelNewDir", "Make New Folder"};
  /// The name of a new folder below the one shown; Enter makes it.
  front::TextBox TextNewDir{*this, "TextNewDir"};
  front::Label LabelRmDir{*this, "LabelRmDir", "Remove Folder"};
  /// The files in the staging folder that found no place.
  front::ListBox ListCR2Install{*this, "ListCR2Install"};

 private:
  front::FormStart start_;
};

}  // namespace norvik::install
