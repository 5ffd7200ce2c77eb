#pragma once
// The state of one run of the morph copy. It is not reset between the selected items, which shows:
// a plain morph that is selected behind a link takes that link again.

#include "channels/erc_details.h"

#include <array>
#include <string>

namespace norvik::channels {

inline constexpr std::string_view kExtractFile = "\\SaveMorph.txt";
inline constexpr std::string_view kMergedFile = "\\InsertMorph.txt";

struct CopyRun {
  /// The class of an item that is a link of a morph, and not a rotation or translation channel.
  static constexpr int kLinkOfMorph = -1;

  int selectedClass = kNoDetail;     ///< a DetailClass or kLinkOfMorph
  std::string searchLine;            ///< the line that marks the start of the text to take
  bool linkMode = false;             ///< the wanted link was found: it alone is copied
  bool geometryConfirmed = false;    ///< the operator has accepted a figure with another main OBJ
  bool inserted = false;             ///< text went into an actor of the destination
  ErcLink link;                      ///< the selected link, read back from ListChannels
  std::array<std::string, 5> block;  ///< the link's lines in the source
};

}  // namespace norvik::channels
