#pragma once
// The first half of the morph copy: out of the source into "\SaveMorph.txt".

#include "channels/copy_run.h"
#include "front/session.h"

#include <string>

namespace norvik::channels {

/// Reads the selected item of ListChannels and decides what is to be searched for.
void chooseSearch(CopyRun& run, const front::ListBox& list, int index);

/// Writes the selected entry, or the one link of it, to "\SaveMorph.txt". A source with another
/// main OBJ than the destination is asked about, once in a run; false when the operator does not
/// want to go on. Throws FileError inputPastEnd (62) when the source does not hold the morph or the
/// link.
bool extractMorph(front::Session& session, CopyRun& run, const std::string& selectedText);

}  // namespace norvik::channels
