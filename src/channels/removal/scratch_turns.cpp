#include "channels/removal/scratch_turns.h"

#include "text/rewrite_pass.h"

namespace norvik::channels {

ScratchTurns::ScratchTurns(text::Disk& disk, std::string figure, std::string first,
                           std::string second)
    : disk_(disk),
      figure_(std::move(figure)),
      first_(std::move(first)),
      second_(std::move(second)) {
  text::keepApart(disk_, figure_, first_);
  text::keepApart(disk_, figure_, second_);
}

void ScratchTurns::next() {
  if (later_) disk_.replace(second_, first_);
  later_ = true;
}

bool ScratchTurns::hasResult() const {
  bool whole = false;
  text::ignoringErrors([&] { whole = disk_.exists(first_) && disk_.size(first_) > 0; });
  return whole;
}

}  // namespace norvik::channels
