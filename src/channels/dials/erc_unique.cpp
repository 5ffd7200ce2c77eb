#include "channels/dials/erc_unique.h"

#include "front/finished_file.h"
#include "text/columns.h"
#include "text/rewrite_pass.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kScratch = "\\ERCUnique.txt";
constexpr std::string_view kFigure = "Figure ";

void warnAndAsk(front::Session& session) {
  front::Opening& opening = session.opening;
  const auto extension = text::extension(opening.OpenedPath);
  if (extension != "pz3" && extension != "cr2") {
    session.front.messageBox("CR2 or PZ3 files only!", "Error!", front::kCritical);
    return;
  }
  const front::Answer answer = session.front.messageBox(
      "Do not use this tool with files that have multiple figures in them!  If this is the case, "
      "use the Manual Editor, Find\\Replace.\r\n"
      "If you continue, a text box will appear. Type in your new name and hit enter.",
      "Alert!", front::kOkCancel);
  if (answer != front::Answer::ok) return;
  opening.TextERCUnique.show();
  opening.setFocus(opening.TextERCUnique);
}

void writeCopy(front::Session& session, const std::string& name, const std::string& scratch) {
  static const text::LineFilter figures{text::anywhere(kFigure)};
  text::RewritePass pass(session.disk, session.opening.OpenedPath, scratch);
  for (pass.copyLines(figures); !pass.in().atEnd(); pass.copyLines(figures)) {
    const auto line = pass.in().line();
    if (text::holds(line, kFigure)) {
      pass.out().line(text::before(line, kFigure), name);
    } else {
      pass.out().line(line);
    }
  }
  pass.finish();
}

void makeUnique(front::Session& session) {
  front::Opening& opening = session.opening;
  const std::string target =
      opening.OpenedPath.substr(0, opening.OpenedPath.rfind('.')) + "_Unique.cr2";
  const std::string scratch = opening.inProgramFolder(kScratch);
  opening.TextERCUnique.hide();
  session.hourglass(true);
  writeCopy(session, opening.TextERCUnique.text(), scratch);
  session.disk.replace(scratch, target);
  session.hourglass(false);
  session.front.tellOf({.path = target});
  session.front.messageBox("Unique Figure Name CR2 saved as " + target, "Note", front::kOk);
}

}  // namespace

void wireErcUnique(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.menuERCUnique.clicked.add([&session] { warnAndAsk(session); });
  opening.TextERCUnique.key.add([&session, &opening](const std::string& key) {
    if (key == "Enter") makeUnique(session);
    if (key == "Escape") opening.TextERCUnique.hide();
  });
}

}  // namespace norvik::channels
