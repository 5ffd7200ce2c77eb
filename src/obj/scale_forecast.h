#pragma once
// What the scaler will write, told before it does.

#include "text/line_reader.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::obj {

/// The amount that a text in TextOBJScale stands for; nothing for one that the scaler refuses.
std::optional<float> scaleAmount(std::string_view text);

/// Counts the coordinates of a mesh that the scaler writes without their point: the zeros that fill
/// up the column turn 1 into 10000000. Reads a stretch of the file at a time, so that it can run
/// beside other things.
class ScaleForecast {
 public:
  /// Reads what the scaler reads.
  ScaleForecast(std::unique_ptr<text::HostFile> file, float amount)
      : in_(std::move(file)), amount_(amount) {}

  /// Reads some lines, as many as take a few milliseconds; whether there are more. Throws what a
  /// read does, and overflow (6) where the scaler would.
  bool readOn();

  std::uint64_t withoutPoint() const { return withoutPoint_; }
  // The first line with such a coordinate, as it is and as it will be; empty for none.
  const std::string& before() const { return before_; }
  const std::string& after() const { return after_; }

 private:
  void take(std::string_view line);

  text::LineReader in_;
  float amount_;
  std::uint64_t withoutPoint_ = 0;
  std::string before_;
  std::string after_;
};

}  // namespace norvik::obj
