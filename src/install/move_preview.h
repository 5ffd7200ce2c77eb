#pragma once
// What an installation would do, for the operator to see before it does it.

#include "install/move_plan.h"
#include "text/disk.h"

#include <string>
#include <vector>

namespace norvik::install {

/// A staged file and its way. `folder` is empty for one that stays, and `remark` says why.
struct MovePreview {
  std::string name;
  std::string folder{};
  std::string newName{};
  std::string remark{};
};

/// All staged files in the order of their names. Nothing is changed.
std::vector<MovePreview> previewMoves(const text::Disk& disk, const InstallPlaces& places);

}  // namespace norvik::install
