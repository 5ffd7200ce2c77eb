#pragma once
// Renamer: the form on which a file is picked whose dials get other names.

#include "dials/renamed_line.h"
#include "front/file_lists.h"
#include "front/form.h"
#include "front/form_start.h"
#include "front/menu_entry.h"
#include "front/plain_controls.h"
#include "front/text_controls.h"

#include <cstdint>
#include <optional>
#include <string>

namespace norvik::dials {

class Renamer : public front::Form {
 public:
  Renamer();

  /// Gives everything the state in which the form is shown: nothing picked, no direction.
  void restoreStart();

  std::optional<Direction> chosen;  ///< the direction
  std::string pickedFile;           ///< its whole path; empty: none
  std::uint64_t passes = 0;         ///< how many were made, whatever came of them

  front::MenuEntry MenuHelp{*this, "MenuHelp", "Help"};
  front::Label LabelFriendly{*this, "LabelFriendly", "Change to Friendly"};
  front::Label LabelGetSR{*this, "LabelGetSR", "Revert to GetStringRes"};
  front::FolderList Dir1{*this, "Dir1"};
  front::DriveList Drive1{*this, "Drive1", &Dir1};
  front::FileList File1{*this, "File1"};
  /// The picked file's name; it is dragged to the picture.
  front::Label Label1{*this, "Label1"};
  front::PictureButton Picture1{*this, "Picture1"};

 private:
  front::FormStart start_;
};

}  // namespace norvik::dials
