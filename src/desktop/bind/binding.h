#pragma once
// What keeps a control of a form and what draws it in step.

#include "desktop/dispatcher.h"
#include "front/control.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace norvik::desktop {

/// One drawn thing and its control. update() brings the drawn thing up to date; while it runs, what
/// the drawn thing reports is not the operator's doing.
class Binding {
 public:
  Binding(Dispatcher& dispatcher, front::Control& control)
      : dispatcher_(dispatcher), control_(control) {}
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;
  virtual ~Binding() = default;

  front::Control& control() const { return control_; }
  void update();

 protected:
  virtual void refresh() = 0;
  bool refreshing() const { return refreshing_; }
  /// Whether the operator's doing reaches the control now; if it does not, the drawn thing goes
  /// back to what the control says.
  bool accepts();
  Dispatcher& dispatcher() const { return dispatcher_; }

  /// Delivers an event, if anybody wants to know.
  template <typename... Args, typename... Values>
  void raise(const front::Event<Args...>& event, Values&&... values) {
    if (event.hasHandlers()) {
      dispatcher_.raise(event, std::forward<Values>(values)...);
    } else {
      dispatcher_.sync();
    }
  }

 private:
  Dispatcher& dispatcher_;
  front::Control& control_;
  bool refreshing_ = false;
};

/// All bindings of the program, by control.
class Bindings {
 public:
  Binding& add(std::unique_ptr<Binding> binding);
  bool bound(const front::Control& control) const { return byControl_.contains(&control); }

  /// Updates what draws the controls of a form that changed.
  void sync(front::Form& form);
  /// Updates all that draws a form.
  void updateAll(const front::Form& form);

 private:
  std::unordered_multimap<const front::Control*, std::unique_ptr<Binding>> byControl_;
};

}  // namespace norvik::desktop
