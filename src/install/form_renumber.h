#pragma once
// FormRenumber: a numbered sequence of files gets names that sort in order.

#include "front/choice_controls.h"
#include "front/file_lists.h"
#include "front/form.h"
#include "front/form_start.h"
#include "front/text_controls.h"

namespace norvik::install {

class FormRenumber : public front::Form {
 public:
  FormRenumber() : Form("FormRenumber", "File Sequence Renumber-er") {
    start_.remember(*this);
    static_cast<void>(takeChanges());
  }

  /// Gives everything the state in which the form is shown.
  void restoreStart() { start_.restore(); }

  front::Label LabelHint{*this, "LabelHint",
                         "Navigate to the folder with your file sequence and click GO.  Files "
                         "numbered 1 etc will be renamed as 001"};
  // They choose what File1 shows, not what is renamed.
  front::OptionButton OptionBMP{*this, "OptionBMP", "BMP"};
  front::OptionButton OptionOBJ{*this, "OptionOBJ", "OBJ"};
  front::FolderList Dir1{*this, "Dir1"};
  front::DriveList Drive1{*this, "Drive1", &Dir1};
  front::FileList File1{*this, "File1"};
  front::CommandButton CommandGo{*this, "CommandGo", "GO"};

 private:
  front::FormStart start_;
};

}  // namespace norvik::install
