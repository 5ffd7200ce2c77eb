#pragma once
// The block of an actor that holds its channels. An actor occurs twice in a figure: first in the
// section that says where its geometry is, then with its channels. Most tools find the second block
// by counting the lines that name the actor.

#include "text/rewrite_pass.h"

#include <string>
#include <string_view>

namespace norvik::channels {

/// How a tool knows the lines that begin an actor's blocks. The tools differ, and it shows where
/// one actor's name begins or holds another's.
class ActorLine {
 public:
  /// "actor " and the name, and nothing more.
  static ActorLine equal(std::string_view name);
  /// "actor " and the name, whatever follows.
  static ActorLine beginning(std::string_view name);
  /// "actor" at the first column, and the name anywhere behind.
  static ActorLine holding(std::string_view name);

  bool fits(std::string_view line) const;
  /// Lets all lines through that may fit; good for as long as this object.
  text::LineFilter filter() const { return {text::atStart(start_)}; }

 private:
  enum class Test { equal, beginning, holding };
  ActorLine(Test test, std::string start, std::string_view name)
      : test_(test), start_(std::move(start)), name_(name) {}

  Test test_;
  std::string start_;
  std::string name_;
};

/// Reads through the second line that fits. Throws FileError inputPastEnd (62) if there is none.
void passThroughSecond(text::LineReader& in, const ActorLine& actor);

/// Copies through the second line that fits. Throws FileError inputPastEnd (62) if there is none.
void copyThroughSecond(text::RewritePass& pass, const ActorLine& actor);

}  // namespace norvik::channels
