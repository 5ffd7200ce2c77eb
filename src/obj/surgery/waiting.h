#pragma once
// A tool that takes its time.

#include "front/form_obj.h"

namespace norvik::obj {

/// LabelWait on view, for as long as this lives.
class Waiting {
 public:
  explicit Waiting(front::FormOBJ& form) : form_(form) { form_.LabelWait.show(); }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
  ~Waiting() { form_.LabelWait.hide(); }

 private:
  front::FormOBJ& form_;
};

}  // namespace norvik::obj
