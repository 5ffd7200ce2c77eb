#include "desktop/bind/binding.h"

#include "front/form.h"

namespace norvik::desktop {

void Binding::update() {
  refreshing_ = true;
  refresh();
  refreshing_ = false;
}

bool Binding::accepts() {
  if (refreshing_) return false;
  if (dispatcher_.open()) return true;
  update();
  return false;
}

Binding& Bindings::add(std::unique_ptr<Binding> binding) {
  Binding& added = *binding;
  byControl_.emplace(&added.control(), std::move(binding));
  added.update();
  return added;
}

void Bindings::sync(front::Form& form) {
  for (const front::Control* control : form.takeChanges()) {
    const auto [first, last] = byControl_.equal_range(control);
    for (auto entry = first; entry != last; ++entry) entry->second->update();
  }
}

void Bindings::updateAll(const front::Form& form) {
  for (const auto& [control, binding] : byControl_) {
    if (&control->form() == &form) binding->update();
  }
}

}  // namespace norvik::desktop
