#include "channels/dials/bend.h"

#include "channels/dials/line_count_copy.h"
#include "figure/actor_entry.h"
#include "text/line_search.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kScratch = "\\TempBend.txt";

struct Bending {
  std::string_view line;
  std::string_view word;
};
constexpr Bending kOff{"\tbend 0", "off"};
constexpr Bending kOn{"\tbend 1", "on"};

void setBending(front::Session& session, const Bending& bending) {
  front::Opening& opening = session.opening;
  const std::string entry{opening.ListActors.chosen()};
  if (opening.ListActors.selection().empty() || !figure::namesActor(entry)) return;
  opening.ChosenPart = figure::actorName(entry);
  const std::string scratch = opening.inProgramFolder(kScratch);
  const std::string word{bending.word};
  session.hourglass(true);
  {
    text::RewritePass pass(session.disk, opening.OpenedPath, scratch);
    copyLineCount(pass, figure::actorLineNumber(entry));
    const std::string line = text::copyUpTo(pass, {text::anywhere("bend")}, text::holding("bend"));
    if (line == bending.line) {
      pass.finish();
      session.hourglass(false);
      session.front.messageBox("Bending is already turned " + word + " for this part.", "Note!",
                               front::kOk);
      return;
    }
    pass.out().line(bending.line);
    pass.copyRest();
    pass.finish();
  }
  session.disk.replace(scratch, opening.OpenedPath);
  session.hourglass(false);
  session.front.messageBox("Bending turned " + word + " for " + opening.ChosenPart, "Note!",
                           front::kOk);
}

}  // namespace

void wireBend(front::Session& session) {
  session.opening.MenuBendOff.clicked.add([&session] { setBending(session, kOff); });
  session.opening.MenuBendOn.clicked.add([&session] { setBending(session, kOn); });
}

}  // namespace norvik::channels
