#pragma once
// What a run comes to.

namespace norvik::headless {

enum ExitCode : int {
  kDone = 0,
  kExpectationFailed = 1,
  kRefused = 2,     ///< or a bad option or command
  kUnanswered = 3,  ///< a box or dialog had no answer
  kRunnerFailed = 4,
};

/// What went wrong in a run so far; the most serious decides the exit code.
struct Outcome {
  bool expectationFailed = false;
  bool refused = false;
  bool unanswered = false;

  ExitCode exitCode() const {
    if (unanswered) return kUnanswered;
    if (refused) return kRefused;
    return expectationFailed ? kExpectationFailed : kDone;
  }
};

}  // namespace norvik::headless
