#include "front/form.h"

#include "text/columns.h"

#include <algorithm>

namespace norvik::front {

namespace {

constexpr float kFontPoints = 8.25F;

}  // namespace

Form::Form(std::string_view name, std::string_view caption)
    : name_(name), caption_(caption), fontSize_(kFontPoints) {}

Control* Form::find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
    return text::equalIgnoringCase(control->name(), name);
  });
  return found == controls_.end() ? nullptr : *found;
}

std::vector<Control*> Form::takeChanges() {
  std::vector<Control*> changes;
  changes.swap(changed_);
  for (Control* control : changes) control->changed_ = false;
  return changes;
}

}  // namespace norvik::front
