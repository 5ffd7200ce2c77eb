#pragma once
// What is written into the note file.

#include "front/session.h"

#include <string_view>

namespace norvik::front {

/// The note file in the program folder.
inline constexpr std::string_view kNoteFile = "\\Notes.txt";

/// Appends an entry to a note file, which is made if there is none: the date and time of the
/// moment, what it is about between two markers, and the note as it stands.
void appendNoteEntry(Session& session, std::string_view path, std::string_view about,
                     std::string_view note);

}  // namespace norvik::front
