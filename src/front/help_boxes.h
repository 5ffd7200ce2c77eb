#pragma once
// What a right click on a picture button tells the operator.

#include "front/session.h"

#include <span>
#include <string_view>

namespace norvik::front {

struct HelpBox {
  std::string_view control;
  std::string_view title;
  std::string_view text;
};

/// Has a right click on controls of a form show their help boxes. They outlive the form.
void hangHelpBoxes(Session& session, Form& form, std::span<const HelpBox> boxes);

/// Hangs the help boxes on the pictures of the main form: a right click shows one and does nothing
/// else.
void wireHelpBoxes(Session& session);

}  // namespace norvik::front
