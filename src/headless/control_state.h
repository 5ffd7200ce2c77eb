#pragma once
// The state of a control, as the runner shows it and compares it.

#include "front/control.h"
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

/// The event that shows a control; `name` is how the script calls it.
JsonObject showEvent(const front::Control& control, std::string_view name);

}  // namespace norvik::headless
