#pragma once
// The second half of the joint transfer: the extract into the destination.

#include "front/session.h"

#include <string>

namespace norvik::channels {

/// The extract of the first half, and what InsertJoint leaves of it.
inline constexpr std::string_view kJointFile = "\\jointfile.txt";

/// Writes the names in "\jointfile.txt" anew, replaces the joint channels of `part` in DestPath by
/// those of the extract, one by one, and puts the result in DestPath's place. `sourceEntry` is the
/// entry of ListChannels that the extract was made for. A destination without the part is told
/// about and stays as it is.
void InsertJoint(front::Session& session, const std::string& sourceEntry, const std::string& part);

}  // namespace norvik::channels
