#pragma once
// The pass that every tool makes which changes a file: the figure is read forward, and kept or
// changed lines go to a scratch file.

#include "text/line_reader.h"
#include "text/line_writer.h"

#include <string>
#include <string_view>

namespace norvik::text {

/// Throws FileError fileAlreadyOpen (55) if the file that is to be read is the scratch file itself,
/// which a pass deletes and writes anew: a result that an operator has opened to rescue it stays.
void keepApart(const Disk& disk, std::string_view source, std::string_view scratch);

/// A reader of the figure and a writer of the scratch file, side by side. The scratch file is
/// deleted first, if it can be; it must be another file than the figure (see keepApart). When the
/// pass ends early on an error, the lines printed so far stand in the scratch file, and the figure
/// is as it was.
///
///     RewritePass pass(disk, figure, scratch);
///     while (!pass.in().atEnd()) pass.out().line(changed(pass.in().line()));
///     pass.finish();
///     disk.replace(scratch, figure);
class RewritePass {
 public:
  RewritePass(Disk& disk, std::string_view figure, std::string_view scratch);

  LineReader& in() { return in_; }
  LineWriter& out() { return out_; }

  /// Copies the lines that hold none of the filter's tokens; the next read is at one that may.
  void copyLines(const LineFilter& filter);

  /// Copies all that is left.
  void copyRest();

  /// Closes both files; the scratch file is complete.
  void finish();

 private:
  LineWriter out_;
  LineReader in_;
};

}  // namespace norvik::text
