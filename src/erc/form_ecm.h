#pragma once
// The form that walks through the choices of a link.

#include "front/form.h"
#include "front/list_box.h"
#include "front/text_controls.h"

#include <string>

namespace norvik::erc {

/// Its lists and texts are the data of the link that is being made.
class FormECM : public front::Form {
 public:
  FormECM();

  /// Gives everything the state in which the form is shown: lists and texts empty, nothing on view
  /// but the list of channels and the way out.
  void restoreStart();

  // What crosses the choices.

  std::string FigureNumber;
  std::string FirstFigureNumber;
  std::string MasterChannel;
  std::string SlavedChannel;
  std::string SecondChannel;
  int PickCount = 0;     ///< clicks in ListControlledMorph: 1 the slaved channel, 2 the master
  int FileWritten = 0;   ///< 1 behind a saved PBM: the list shows the file as it was before
  bool Listing = false;  ///< a list is being filled: the operator's acts wait for its end

  // The kind of the link: the one of these that is on view.

  front::Label LabelJCM{*this, "LabelJCM", "Joint Controlled Morph"};
  front::Label LabelPBM{*this, "LabelPBM", "Partial Body Morph"};
  front::Label LabelCM{*this, "LabelCM", "Conforming Morph"};
  front::Label LabelJCJ{*this, "LabelJCJ", "Joint Controlled Joint"};
  front::Label LabelJCT{*this, "LabelJCT", "Joint Controlled Translation"};
  front::Label LabelMCT{*this, "LabelMCT", "Morph Controlled Translation"};
  front::Label LabelTCM{*this, "LabelTCM", "Translation Controlled Morph"};
  front::Label LabelMCJ{*this, "LabelMCJ", "Morph Controlled Joint"};
  front::Label LabelTCJ{*this, "LabelTCJ", "Translation Controlled Joint"};
  front::Label LabelMCM{*this, "LabelMCM", "Morph Controlled Morph"};

  // What is chosen from.

  front::Label LabelMCControled{*this, "LabelMCControled", "Controlled channel"};
  front::Label LabelMCMaster{*this, "LabelMCMaster", "Master channel"};
  /// The channels, in turn for the slaved and the master one.
  front::ListBox ListControlledMorph{*this, "ListControlledMorph"};
  front::Label LabelConFigECM{*this, "LabelConFigECM", "Controlling figure"};
  /// The names of the figures in the file.
  front::ListBox ListConFigECM{*this, "ListConFigECM"};
  front::ListBox ListActorsECM{*this, "ListActorsECM"};
  /// Hidden: for each joint or translation channel its text, "*" and its min line, then the same
  /// with its max line.
  front::ListBox ListMinMax{*this, "ListMinMax"};

  // What was chosen, as it goes into the file.

  front::Label LabelPBM1{*this, "LabelPBM1", "Slaved channel"};
  front::TextBox TextPBM1{*this, "TextPBM1"};
  front::Label LabelPBM2{*this, "LabelPBM2", "Controlling figure"};
  front::TextBox TextPBM2{*this, "TextPBM2"};
  front::Label LabelPBM3{*this, "LabelPBM3", "Master channel"};
  front::TextBox TextPBM3{*this, "TextPBM3"};
  front::Label LabelPBM4{*this, "LabelPBM4", "Master group"};
  front::TextBox TextPBM4{*this, "TextPBM4"};
  front::Label LabelPBMRatio{*this, "LabelPBMRatio", "Control ratio"};
  front::TextBox TextPBMRatio{*this, "TextPBMRatio"};

  front::Label LabelWait{*this, "LabelWait", "Please wait..."};
  front::Label LabelDone{*this, "LabelDone", "Done"};
  front::Label LabelCancel{*this, "LabelCancel", "Cancel"};
};

}  // namespace norvik::erc
