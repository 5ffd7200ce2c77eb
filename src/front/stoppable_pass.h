#pragma once
// A pass that the operator may end before it is through.

#include "front/front_end.h"

#include <functional>

namespace norvik::front {

/// What a front end is that can end such a pass. It throws ToolStopped out of a read of a file
/// while the pass runs, or out of check().
class PassStopper {
 public:
  virtual ~PassStopper() = default;
  virtual void beginPass() = 0;
  virtual void checkPass() = 0;
  virtual void endPass() = 0;
};

/// Runs a part of a tool that reads files and writes scratch files, and changes nothing of the
/// operator's: it may end at any read, and then the tool ends there with ToolStopped, as by a
/// run-time error, without a word. What the pass has written so far stays in its scratch file.
/// Whoever has replaced a file already keeps what follows out of it.
///
///     runStoppable(session.front, [&] { fill(scratch); });
///     session.disk.replace(scratch, figure);
void runStoppable(FrontEnd& front, const std::function<void()>& pass);

}  // namespace norvik::front
