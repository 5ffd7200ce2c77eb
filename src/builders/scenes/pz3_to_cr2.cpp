#include "builders/scenes/pz3_to_cr2.h"

#include "builders/scenes/figure_sections.h"
#include "front/finished_file.h"
#include "text/first_dot.h"
#include "text/line_search.h"

namespace norvik::builders {

namespace {

using text::anywhere;

constexpr std::string_view kScratch = "\\PZ3.txt";

/// Whether a reference in front of the scene's film settings names a figure that stays in its
/// scene. Throws FileError inputPastEnd (62) for a scene without actors.
bool holdsRefusedFigure(text::LineReader in) {
  static const text::LineFilter references{anywhere("figureRes"), anywhere("movie")};
  text::passThrough(in, {anywhere("actor")}, text::holding("actor"));
  for (;;) {
    in.passLines(references);
    if (in.atEnd()) return false;
    const auto line = in.line();
    if (text::holds(line, "movie")) return false;
    const bool reference = text::holds(line, "figureRes");
    if (reference && (text::holds(line, "blMil") || text::holds(line, "blV"))) return true;
  }
}

/// Returns what the operator should know of the result.
std::string writeFigure(front::Session& session, const std::string& scratch) {
  text::RewritePass pass(session.disk, session.opening.OpenedPath, scratch);
  FigureSections figure(pass.out());
  pass.in().handOnLines({}, [&figure](std::string_view lines) { figure.add(lines); });
  pass.finish();
  return figure.note();
}

void convert(front::Session& session) {
  front::Opening& opening = session.opening;
  front::CommonDialog& dialog = opening.CommonDialog2;
  const std::string proposed = text::throughFirstDot(opening.OpenedPath, "cr2");
  const std::string folder = session.disk.currentFolder();
  if (!dialog.save(session.front, folder, proposed, "Name To Save As...",
                   {{}, front::kCharacterFilter})) {
    return;
  }
  session.hourglass(true);
  if (holdsRefusedFigure(text::LineReader(session.disk, opening.OpenedPath))) {
    session.hourglass(false);
    session.front.messageBox("You can't convert Vicki or Mike!", "Sorry!", front::kCritical);
    return;
  }
  const std::string scratch = opening.inProgramFolder(kScratch);
  const std::string note = writeFigure(session, scratch);
  session.disk.replace(scratch, dialog.fileName());
  session.hourglass(false);
  session.front.tellOf({.path = dialog.fileName(), .note = note});
}

}  // namespace

void wirePz3ToCr2(front::Session& session) {
  session.opening.MenuPZ3Cr2Conv.clicked.add([&session] { convert(session); });
}

}  // namespace norvik::builders
