#pragma once
// What happens at a control, and who wants to know.

#include <functional>
#include <utility>
#include <vector>

namespace norvik::front {

class Control;
class Form;

/// A list of handlers, called in the order in which they were added.
///
///     opening.PictureTrash.released.add([&](Mouse mouse) { ... });
template <typename... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  Event() = default;
  // What it happens at has a name, by which a front end and the history speak of it.
  explicit Event(const Control& control) : control_(&control) {}
  explicit Event(const Form& form) : form_(&form) {}

  const Control* control() const { return control_; }
  const Form* form() const { return form_; }

  void add(Handler handler) { handlers_.push_back(std::move(handler)); }
  bool hasHandlers() const { return !handlers_.empty(); }

  void raise(Args... args) const {
    // By index: a handler may add another one.
    for (std::size_t i = 0; i < handlers_.size(); ++i) handlers_[i](args...);
  }

 private:
  std::vector<Handler> handlers_;
  const Control* control_ = nullptr;
  const Form* form_ = nullptr;
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
