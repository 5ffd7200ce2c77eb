#pragma once
// The two halves of the body part transfer as plainly as they can be said: a line at a time over
// PlainText.

#include "plain_text.h"

#include <string>
#include <vector>

namespace norvik::fuzz {

/// What was written when a half ended, and the number of the error that ended it.
struct PlainTransfer {
  std::vector<std::string> out = {};
  int error = 0;
  std::size_t boxes = 0;
  bool complete = false;  ///< it came to its end, and the operator did not break it off
};

/// The extraction of the part that an item of ListActors names.
PlainTransfer plainExtract(const std::string& text, const std::string& item);

/// How the operator goes through the graft.
struct PlainGraft {
  std::string name;  ///< of the new part
  bool yes = false;  ///< his answer to both questions
  std::string chain;
  int pick = 0;  ///< the item of the links
};

/// The graft into a figure whose new geometry is the mesh a.obj in the folder Man.
PlainTransfer plainGraft(const std::string& text, const std::string& extract,
                         const PlainGraft& graft);

}  // namespace norvik::fuzz
