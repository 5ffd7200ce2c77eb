#pragma once
// Which parts of a scene belong to its figure.

#include "text/line_writer.h"

#include <string_view>

namespace norvik::builders {

/// Writes the sections of a scene that belong to its figure. A section begins at a line whose first
/// character is neither blank, tab nor brace, and runs to the next such line; what stands in front
/// of the first one is kept.
///
/// The ground, the lights and the cameras go. From the section "doc" on everything goes up to and
/// including "actor UNIVERSE"; and behind the section that holds the figure's "setGeom" line
/// everything up to the next "doc". A line that begins with a closing bracket always stays, so that
/// the file's own last one does.
class FigureSections {
 public:
  explicit FigureSections(text::LineWriter& out) : out_(out) {}

  /// Takes whole lines with their endings, in the order of the file.
  void add(std::string_view lines);

 private:
  enum class Range { figure, behindFigure, settings };

  void enterLine(std::string_view line);
  bool enterSection(std::string_view line);
  void addText(std::string_view lines);

  text::LineWriter& out_;
  Range range_ = Range::figure;
  bool inSection_ = false;   ///< the first section has begun
  bool kept_ = true;         ///< the present section stays
  bool endsFigure_ = false;  ///< it holds the line behind which the figure ends
};

}  // namespace norvik::builders
