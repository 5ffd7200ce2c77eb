#pragma once
// Which staged file goes where.

#include "front/opening.h"

#include <string>
#include <string_view>

namespace norvik::install {

/// The places that an installation goes to. Empty folders are not known.
struct InstallPlaces {
  std::string staging;
  std::string figure;   ///< the CR2's name
  std::string library;  ///< the picked folder
  std::string geometry;
  std::string textures;  ///< the library where the figure names none

  /// As the hidden labels of the main form have them, with the picked folder.
  static InstallPlaces of(const front::Opening& opening, const std::string& library);

  /// The figure's name up to and including its first dot, and an ending.
  std::string named(std::string_view ending) const;
};

/// What becomes of a staged file when the staging folder is gone through.
struct StagedMove {
  enum class Kind {
    move,    ///< goes to `target`
    leave,   ///< stays, and nothing is said
    report,  ///< stays, and is reported
  };
  Kind kind = Kind::report;
  std::string folder{};
  std::string target{};
};

/// By the last three characters of its name, in small letters as they stand. A further CR2 has no
/// place; neither has a mesh or an MTL of a figure that names no geometry.
StagedMove moveOf(const InstallPlaces& places, std::string_view name);

}  // namespace norvik::install
