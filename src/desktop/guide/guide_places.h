#pragma once
// Which page of the guide tells about what.

#include <span>
#include <string_view>

namespace norvik::desktop {

/// A window, or a control or menu entry in one, and its place in the guide: a page, and behind a #
/// a heading of it as links name it.
struct GuidePlace {
  std::string_view window;
  std::string_view control;  ///< empty for the window itself
  std::string_view place;
};

/// Every one that has a place.
std::span<const GuidePlace> guidePlaces();

/// Controls that say, while they are on view, what a window is used for.
std::span<const GuidePlace> guideSigns();

/// The place of a control in a window, or of the window itself; empty if it has none of its own.
std::string_view guidePlaceOf(std::string_view window, std::string_view control);

/// Where the guide begins.
inline constexpr std::string_view kGuideStart = "README.md";

}  // namespace norvik::desktop
