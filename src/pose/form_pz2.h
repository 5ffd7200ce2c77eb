#pragma once
// FormPZ2, which serves two tools: the pose builder and the MAT builder.

#include "front/choice_controls.h"
#include "front/form.h"
#include "front/form_start.h"
#include "front/list_box.h"
#include "front/plain_controls.h"
#include "front/text_controls.h"

#include <set>
#include <string>

namespace norvik::pose {

/// Its controls are the data of both tools. It begins in pose mode, the controls of the MAT builder
/// hidden.
class FormPZ2 : public front::Form {
 public:
  FormPZ2();

  /// Whether it builds a MAT file. LabelMAT tells the two tools apart.
  bool matMode() const { return LabelMAT.visible(); }

  /// Gives everything the state in which the form is shown.
  void restoreStart();

  // What crosses the form's tools.

  std::string path;      ///< the file that the lists were filled from
  std::string propLine;  ///< the first `prop` line of hair: it heads the MAT file
  /// The items of ListMATColors that the operator has changed, for those who look at the list.
  std::set<int> changedColours;
  int showings = 0;  ///< how often the form began afresh, for a pass that events interrupt

  front::Label LabelMAT{*this, "LabelMAT", "MAT File"};
  /// The source's path.
  front::Label LabelFNamePZ2{*this, "LabelFNamePZ2"};

  // The pose builder.

  front::Label LabelDirections{*this, "LabelDirections",
                               "Choose the parts you want to use for your pose by double-clicking "
                               "them, then click Done."};
  /// The body parts that are not chosen, in file order.
  front::ListBox ListActorsPZ2{*this, "ListActorsPZ2"};
  /// Hidden: the chosen ones.
  front::ListBox ListActorsWanted{*this, "ListActorsWanted"};

  // The MAT builder.

  /// The materials that are not chosen, in file order.
  front::ListBox ListMaterialsMAT{*this, "ListMaterialsMAT"};
  /// Hidden: their colours as the file has them, four numbers, by the same index until a material
  /// is chosen. Then the colours behind it are one too far down.
  front::ListBox ListMATColors{*this, "ListMATColors"};
  /// Hidden: the chosen materials.
  front::ListBox ListMaterialsMATWanted{*this, "ListMaterialsMATWanted"};
  front::CheckBox CheckAllMat{*this, "CheckAllMat", "Include ALL materials"};
  front::CheckBox CheckIncludeMaps{*this, "CheckIncludeMaps", "Include Maps"};
  front::CheckBox CheckNoTrans{*this, "CheckNoTrans", "No Trans Maps"};
  front::CheckBox CheckSetToWhite{*this, "CheckSetToWhite", "Set Colors to White"};
  front::Frame Frame1{*this, "Frame1", "Colors"};
  /// Tells how a colour is changed.
  front::Label LabelChangeColor{*this, "LabelChangeColor", "Change Color"};
  front::Label LabelPresent{*this, "LabelPresent", "Present"};
  /// Painted in the colour that the picked material has.
  front::Shape ShapePresentColor{*this, "ShapePresentColor"};
  front::Label LabelNew{*this, "LabelNew", "New"};
  /// Painted in the colour that it gets.
  front::Shape ShapeNewColor{*this, "ShapeNewColor"};

  front::Label LabelDonePZ2{*this, "LabelDonePZ2", "Done"};
  front::Label LabelCancelPZ2{*this, "LabelCancelPZ2", "Cancel"};

 private:
  front::FormStart start_;
};

}  // namespace norvik::pose
