#pragma once

#include "channel_writer.h"
#include "figure.h"
#include "text_file.h"

#include <cstddef>
#include <vector>

namespace norvik::examples {

// Writes a part's joint channels: its own twist and bends against its parent, the bends of its
// children, and the blend of its size. The hip has no joint of its own, since it hangs from BODY.
void writeJoints(TextFile& file, const Figure& figure, std::size_t part);

// The masters of one of a part's channels that is not a morph.
std::vector<Master> mastersOf(const Figure& figure, const BodyPart& part, const std::string& name);

Point originOf(const BodyPart& part);
Point endOf(const BodyPart& part);

}  // namespace norvik::examples
