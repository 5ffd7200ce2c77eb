#include "front/progress.h"

#include <algorithm>

namespace norvik::front {

void ProgressUpdate(Label& progressLabel, int percent) {
  constexpr int kPercentPerTab = 10;
  const auto tabs = static_cast<std::size_t>(std::max(percent, 0) / kPercentPerTab);
  progressLabel.setCaption(progressLabel.caption() + std::string(tabs, '\t'));
}

}  // namespace norvik::front
