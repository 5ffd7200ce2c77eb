#include "channels/joints/joint_channel.h"

#include "text/columns.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kTabs = "\t\t\t";

bool endsChannel(std::string_view line) {
  return text::begins(line, kTabs) && text::begins(line.substr(kTabs.size()), "}");
}

}  // namespace

bool beginsJoint(std::string_view line) {
  return text::begins(line, "\t\tjoint");
}

bool beginsJointOrTwist(std::string_view line) {
  return beginsJoint(line) || text::begins(line, "\t\ttwist");
}

const std::optional<std::string>& JointWalk::next() {
  if (!line_ && !in_.atEnd()) line_ = in_.line();
  return line_;
}

void JointWalk::handOutChannel(const Sink& sink) {
  sink(*next());
  pass();
  while (next() && text::begins(*next(), kTabs)) {
    const bool last = endsChannel(*next());
    sink(*next());
    pass();
    if (last) return;
  }
}

}  // namespace norvik::channels
