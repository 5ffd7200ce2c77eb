#pragma once
// The pass that carries edited paths from the boxes into a copy of the figure.

#include "front/session.h"

#include <string>

namespace norvik::figure {

/// New texts for the path lines of a figure; an empty one leaves its lines alone.
struct PathSlots {
  std::string obj;  ///< the whole line that takes the place of a figureResFile line
  std::string texture;
  std::string reflection;
  std::string bump;
  std::string transparency;
};

/// The texts of the boxes whose labels are marked as edited, `obj` being the text of its box.
PathSlots editedPaths(const front::Opening& opening);

/// Copies the file of OpenedPath into "\cr2temp.txt" with the slots' texts: in the first two lines
/// that hold figureResFile in front of the main material, and in the map lines from there to the
/// first presetMaterial. A map line keeps as many characters as its keyword has with one tab and
/// one blank, whatever its own indentation is. Labels whose lines were met turn clean, but for
/// LabelMainTex. Throws FileError if the file cannot be read or the copy not be written.
void passPaths(front::Session& session, PathSlots slots);

/// The scratch file that the pass leaves.
inline constexpr std::string_view kPathScratch = "\\cr2temp.txt";

}  // namespace norvik::figure
