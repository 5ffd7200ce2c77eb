#pragma once
// The second half of the morph copy: the extract and the destination into "\InsertMorph.txt".

#include "channels/copy_run.h"
#include "front/session.h"

#include <string>
#include <string_view>

namespace norvik::channels {

/// The body part that a view of one part names in item 0 of ListChannels.
struct NamedPart {
  std::string name;
  std::string figureNumber;
};
NamedPart partInView(const front::ListBox& list);

/// Writes the destination, DestPath, with the extract as the first channel of the part, or with the
/// one link directly behind its morph's header, to "\InsertMorph.txt", and deletes the extract. A
/// figure number in the extract that is not the part's own is mended, with a box for each line.
/// Empty lines of the destination are dropped. Sets `run.inserted` when the part was there; throws
/// FileError inputPastEnd (62) when the destination does not hold the morph of a link. The
/// destination does not change.
void mergeMorph(front::Session& session, CopyRun& run);

}  // namespace norvik::channels
