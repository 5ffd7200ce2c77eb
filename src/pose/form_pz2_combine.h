#pragma once
// FormPZ2Combine: the morph settings of two poses, the first of which receives.

#include "front/common_dialog.h"
#include "front/form.h"
#include "front/form_start.h"
#include "front/list_box.h"
#include "front/text_controls.h"

namespace norvik::pose {

class FormPZ2Combine : public front::Form {
 public:
  FormPZ2Combine();

  /// Gives everything the state in which the form is shown.
  void restoreStart();

  // The file that receives.

  front::Label LabelFileFirst{*this, "LabelFileFirst"};
  /// Its morphs, in file order, each with the blank in front of its name.
  front::ListBox ListFile1{*this, "ListFile1"};
  /// Hidden: their key lines.
  front::ListBox ListKeyLinesFirst{*this, "ListKeyLinesFirst"};
  /// The clicked morph's key line up to its first tab.
  front::Label LabelKey1{*this, "LabelKey1"};

  // The file that gives.

  front::Label LabelOpenSecond{*this, "LabelOpenSecond", "Open Second File"};
  front::Label LabelFileSecond{*this, "LabelFileSecond"};
  /// Its morphs; the selected ones are carried over.
  front::ListBox ListFile2{*this, "ListFile2", front::Selection::multiple};
  /// Hidden: their key lines.
  front::ListBox ListKeyLines{*this, "ListKeyLines"};
  /// Hidden: "TG" or "VP", what kind of channel each is. A second choice of a file adds to it, so
  /// that the kinds at its top stay those of the file before.
  front::ListBox ListTGVP{*this, "ListTGVP"};
  /// Hidden: the actor of each.
  front::ListBox ListActors2{*this, "ListActors2"};
  front::Label LabelKey2{*this, "LabelKey2"};

  // What the welding finds.

  /// Hidden: the actor of each morph of the first file that was met.
  front::ListBox ListActors1{*this, "ListActors1"};
  /// Hidden: the second file's morphs that were met.
  front::ListBox ListFoundMorphs{*this, "ListFoundMorphs"};
  /// The selected morphs that were not: index, "*", name. On view while the operator is asked.
  front::ListBox ListNotFound{*this, "ListNotFound"};

  front::Label LabelDone{*this, "LabelDone", "Done"};
  front::Label LabelCancel{*this, "LabelCancel", "Cancel"};

  front::CommonDialog CommonDialogSave{"FormPZ2Combine.CommonDialogSave"};

 private:
  front::FormStart start_;
};

}  // namespace norvik::pose
