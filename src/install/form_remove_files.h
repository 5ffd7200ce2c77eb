#pragma once
// FormRemoveFiles: the files that a figure uses, to be deleted or copied to another drive.

#include "front/choice_controls.h"
#include "front/file_lists.h"
#include "front/form.h"
#include "front/form_start.h"
#include "front/list_box.h"
#include "front/text_controls.h"

namespace norvik::install {

class FormRemoveFiles : public front::Form {
 public:
  FormRemoveFiles() : Form("FormRemoveFiles", "Remove/Backup Files") {
    ListChecked.hide();
    Drive1.hide();
    LabelDrive.hide();
    start_.remember(*this);
    static_cast<void>(takeChanges());
  }

  /// Gives everything the state in which the form is shown.
  void restoreStart() { start_.restore(); }

  /// All files that the figure uses, by their full paths, itself first.
  front::ListBox ListFiles{*this, "ListFiles", front::Selection::multiple};
  /// Hidden: those that are being dealt with.
  front::ListBox ListChecked{*this, "ListChecked"};
  front::OptionButton OptionRemove{*this, "OptionRemove", "Remove"};
  front::OptionButton OptionBackup{*this, "OptionBackup", "Backup"};
  front::Label LabelDrive{*this, "LabelDrive", "Chose a drive to backup to"};
  front::DriveList Drive1{*this, "Drive1"};
  front::Label LabelGo{*this, "LabelGo", "GO"};

 private:
  front::FormStart start_;
};

}  // namespace norvik::install
