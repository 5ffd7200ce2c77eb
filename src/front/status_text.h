#pragma once
// Short texts that a window may show in its status line. Nothing waits for them to be read.

#include "front/front_end.h"

#include <string_view>

namespace norvik::front {

/// What a front end is that has such a line.
class StatusTexts {
 public:
  virtual ~StatusTexts() = default;
  virtual void showPassText(std::string_view text) = 0;
  virtual void showNote(std::string_view text) = 0;
};

/// The text of a pass that goes on; empty when it has ended.
inline void showPassText(FrontEnd& front, std::string_view text) {
  if (auto* line = dynamic_cast<StatusTexts*>(&front)) line->showPassText(text);
}

/// What the operator should know of the file that was last told of; empty for nothing.
inline void showNote(FrontEnd& front, std::string_view text) {
  if (auto* line = dynamic_cast<StatusTexts*>(&front)) line->showNote(text);
}

}  // namespace norvik::front
