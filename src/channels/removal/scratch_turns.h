#pragma once
// Two scratch files that take turns, so that what is done to several selected items lands in one
// file: the first item's pass reads the figure and writes the first file, each later one reads the
// first and writes the second, which then becomes the first.

#include "text/disk.h"

#include <string>

namespace norvik::channels {

/// The names of the files for the passes of one run.
///
///     ScratchTurns turns(disk, figure, first, second);
///     for (item) { pass from turns.input() to turns.output(); turns.next(); }
///     disk.replace(turns.result(), ...);
class ScratchTurns {
 public:
  /// Throws FileError fileAlreadyOpen (55) if the figure is one of the scratch files itself.
  ScratchTurns(text::Disk& disk, std::string figure, std::string first, std::string second);

  const std::string& input() const { return later_ ? first_ : figure_; }
  const std::string& output() const { return later_ ? second_ : first_; }
  const std::string& result() const { return first_; }

  /// Ends a turn whose output is complete. Throws what Disk::replace throws.
  void next();

  /// Whether the result is there to take a figure's place: what is missing or empty never does.
  bool hasResult() const;

 private:
  text::Disk& disk_;
  std::string figure_;
  std::string first_;
  std::string second_;
  bool later_ = false;
};

}  // namespace norvik::channels
