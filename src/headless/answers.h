#pragma once
// The answers that a script has given ahead.

#include "front/front_end.h"

#include <deque>
#include <optional>
#include <string>

namespace norvik::headless {

/// What a script has answered to a dialog of some kind.
struct DialogAnswer {
  enum class Kind { cancel, file, colour, print };
  Kind kind = Kind::cancel;
  std::string path = {};
  front::Colour colour = 0;
};

/// Queues of answers, one for message boxes and one for dialogs. A dialog takes the first answer
/// that is of its kind or a cancel.
class Answers {
 public:
  void queueBox(front::Answer answer) { boxes_.push_back(answer); }
  void queueDialog(DialogAnswer answer) { dialogs_.push_back(std::move(answer)); }

  std::optional<front::Answer> takeBox();
  std::optional<DialogAnswer> takeDialog(DialogAnswer::Kind kind);

 private:
  std::deque<front::Answer> boxes_;
  std::deque<DialogAnswer> dialogs_;
};

}  // namespace norvik::headless
