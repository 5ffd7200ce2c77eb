#pragma once
// Which parts of a scene belong to its figure.

#include "text/line_writer.h"

#include <string>
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

  /// What stays out and what there is more of than one figure needs, in a few words; empty for
  /// nothing. Good once the whole scene was taken.
  std::string note() const;

 private:
  /// How many sections of a kind the scene has.
  struct Counts {
    int lights = 0;
    int cameras = 0;
    int grounds = 0;
    int settings = 0;
    int others = 0;   ///< that go all the same
    int figures = 0;  ///< stay, as many as there are
  };

  enum class Range { figure, behindFigure, settings };

  void enterLine(std::string_view line);
  bool enterSection(std::string_view line);
  void count(std::string_view line);
  void addText(std::string_view lines);

  text::LineWriter& out_;
  Range range_ = Range::figure;
  bool inSection_ = false;  ///< the first section has begun
  bool kept_ = true;        ///< the present section stays
  Counts counts_;
  bool endsFigure_ = false;  ///< it holds the line behind which the figure ends
};

}  // namespace norvik::builders
