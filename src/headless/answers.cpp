#include "headless/answers.h"

#include <algorithm>

namespace norvik::headless {

std::optional<front::Answer> Answers::takeBox() {
  if (boxes_.empty()) return std::nullopt;
  const front::Answer answer = boxes_.front();
  boxes_.pop_front();
  return answer;
}

std::optional<DialogAnswer> Answers::takeDialog(DialogAnswer::Kind kind) {
  const auto found = std::find_if(dialogs_.begin(), dialogs_.end(), [kind](const auto& answer) {
    return answer.kind == kind || answer.kind == DialogAnswer::Kind::cancel;
  });
  if (found == dialogs_.end()) return std::nullopt;
  std::optional<DialogAnswer> answer = std::move(*found);
  dialogs_.erase(found);
  return answer;
}

}  // namespace norvik::headless
