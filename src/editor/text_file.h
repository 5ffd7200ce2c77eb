#pragma once
// Plain text between the disk and a pane.

#include "front/session.h"
#include "text/long/long_text.h"

#include <string>
#include <string_view>

namespace norvik::editor {

/// All bytes of a file as they are.
text::LongText readText(const text::Disk& disk, std::string_view path);

/// Writes all bytes of a text to a file, in the place of one that is there, in one safe step by way
/// of "\Edit.tmp" in the program folder. A read-only file is refused with pathFileAccess (75).
/// Whatever fails, the old or the new file stands complete under the name.
void writeText(front::Session& session, const text::LongText& content, const std::string& path);

}  // namespace norvik::editor
