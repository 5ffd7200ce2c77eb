#pragma once
// What the picture buttons look like and what they are called.

#include <string_view>

namespace norvik::desktop {

struct PictureLook {
  std::string_view control;
  const char* icon;
  const char* label;  ///< under the icon
  const char* hint;   ///< the tool tip, and the name for those who listen
};

/// The look of a picture button; null for one that has none of its own.
const PictureLook* lookOf(std::string_view control);

}  // namespace norvik::desktop
