#pragma once
// The events of a run, on the way out.

#include "headless/json.h"

#include <ostream>

namespace norvik::headless {

/// Prints one event a line, each at once.
class Transcript {
 public:
  explicit Transcript(std::ostream& out) : out_(out) {}

  void print(const JsonObject& event) { out_ << event.line() << '\n' << std::flush; }

 private:
  std::ostream& out_;
};

}  // namespace norvik::headless
