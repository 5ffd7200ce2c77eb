#pragma once
// What happens at a control, and who wants to know.

#include <functional>
#include <utility>
#include <vector>

namespace norvik::front {

/// A list of handlers, called in the order in which they were added.
///
///     opening.PictureTrash.released.add([&](Mouse mouse) { ... });
template <typename... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  void add(Handler handler) { handlers_.push_back(std::move(handler)); }
  bool hasHandlers() const { return !handlers_.empty(); }

  void raise(Args... args) const {
    // By index: a handler may add another one.
    for (std::size_t i = 0; i < handlers_.size(); ++i) handlers_[i](args...);
  }

 private:
  std::vector<Handler> handlers_;
};

enum class MouseButton { left, right, none };

/// A press, move or release of the mouse on a control, in pixels from its top left corner. A drag
/// may leave the control. The button of a move is the one that is held.
struct Mouse {
  MouseButton button = MouseButton::left;
  int x = 0;
  int y = 0;
};

}  // namespace norvik::front
