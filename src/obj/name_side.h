#pragma once
// Groups and materials as twins: what is done to the one is done to the other.

#include "front/form_obj.h"

#include <string>
#include <string_view>
#include <vector>

namespace norvik::obj {

/// The controls and words of one side. It is made where it is needed and points into the form.
struct NameSide {
  // The operator's road through them: a button lists the names in their colours, LabelRichRename
  // brings the list in which they are renamed, and the check box the one of which some are saved.
  front::CommandButton& command;
  front::RichTextBox& listing;
  front::ListBox& names;
  front::TextBox& newName;
  front::CheckBox& saveCheck;
  front::ListBox& saveList;
  std::vector<std::string>& asRead;  ///< the names before the first rename
  // Hidden.
  front::ListBox& colours;
  front::ListBox& renames;  ///< each old name, "*", new name; " NULL" drops the name

  char letter;                    ///< lines that begin with it are of this side
  std::string_view token;         ///< that a renamed line begins with
  std::size_t nameColumn;         ///< where a line's name begins
  std::string_view closeFirst;    ///< what an operator hears who leaves with `names` on show
  std::string_view renamedFirst;  ///< what one hears who saves names while others are renamed
};

NameSide groupSide(front::FormOBJ& form);
NameSide materialSide(front::FormOBJ& form);

/// Whether a line is of a side.
bool isOf(const NameSide& side, std::string_view line);
/// A line's name on its side.
std::string_view nameOn(const NameSide& side, std::string_view line);

}  // namespace norvik::obj
