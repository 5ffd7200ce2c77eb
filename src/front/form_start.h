#pragma once
// A form that begins afresh at each showing.

#include "front/form.h"

#include <functional>
#include <vector>

namespace norvik::front {

/// Remembers how a form's controls stand, and puts them back:
///
///     FormMOR::FormMOR() : Form("FormMOR", "...") {
///       ListValues.hide();
///       start_.remember(*this);
///     }
///     void FormMOR::restoreStart() { start_.restore(); }
///
/// Lists get the items back that they had, nothing selected.
class FormStart {
 public:
  void remember(const Form& form);
  void restore() const;

 private:
  std::vector<std::function<void()>> steps_;
};

}  // namespace norvik::front
