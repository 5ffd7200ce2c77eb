#pragma once
// What the map tools have in common.

#include "text/record_reader.h"
#include "workshop/workshop.h"

namespace norvik::obj {

/// Whether PictureUVMap holds a template that is not saved yet. Then it is shown again, and nothing
/// new is drawn.
bool showUnsavedMap(Workshop& workshop);

/// A record file of the program folder.
text::RecordReader recordsOf(front::Session& session, std::string_view name, std::size_t length);

}  // namespace norvik::obj
