#pragma once
// Joint and twist channels in the text of a figure.

#include "text/line_reader.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::channels {

/// Whether a line begins a joint channel, by its first seven characters.
bool beginsJoint(std::string_view line);
/// Whether a line begins a joint or a twist channel.
bool beginsJointOrTwist(std::string_view line);

/// A walk over lines that hands out the joint and twist channels one by one. The line that ended a
/// channel is the next one.
class JointWalk {
 public:
  using Sink = std::function<void(std::string_view line)>;

  explicit JointWalk(text::LineReader& in) : in_(in) {}
  /// A walk that begins with a line that was read already.
  JointWalk(text::LineReader& in, std::string line) : in_(in), line_(std::move(line)) {}

  /// The next line; nothing at the end of the file. It stays the next one until it is passed.
  const std::optional<std::string>& next();
  void pass() { line_.reset(); }

  /// Hands out the channel that the next line begins, up to and including its brace at three tabs.
  /// Without that brace it ends in front of the first line with fewer tabs, or with the file.
  void handOutChannel(const Sink& sink);

 private:
  text::LineReader& in_;
  std::optional<std::string> line_;
};

}  // namespace norvik::channels
