#pragma once
// The state of a control, as the runner shows it and compares it.

#include "front/form.h"
#include "headless/json.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvik::headless {

/// A property of a control: its value as JSON, and as the text that expectations are compared with.
struct Property {
  std::string_view name;
  std::string json;
  std::string text;
};

/// The properties that a control of its kind has, in the order in which they are shown.
std::vector<Property> propertiesOf(const front::Control& control);

/// Sets a property as it stands, without an event: "caption", "text", "path", or the "items" of a
/// list box, divided by "|". False if the control has no such property.
bool putProperty(front::Control& control, std::string_view name, const std::string& value);

/// The event that shows a control; `name` is how the script calls it.
JsonObject showEvent(const front::Control& control, std::string_view name);

/// The properties of a form itself, loaded or not.
std::vector<Property> propertiesOf(const front::Form& form);

/// The event that shows a form itself.
JsonObject showEvent(const front::Form& form);

}  // namespace norvik::headless
