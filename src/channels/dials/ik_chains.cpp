#include "channels/dials/ik_chains.h"

#include "text/line_search.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kScratch = "\\TempIK.txt";
constexpr std::string_view kChain = "inkyChain";
constexpr std::string_view kLastOfChain = "defaultPick";

void dropChains(front::Session& session, const std::string& scratch) {
  static const text::LineFilter chains{text::anywhere(kChain)};
  static const text::LineFilter lasts{text::anywhere(kLastOfChain)};
  text::RewritePass pass(session.disk, session.opening.OpenedPath, scratch);
  for (pass.copyLines(chains); !pass.in().atEnd(); pass.copyLines(chains)) {
    const auto line = pass.in().line();
    if (text::holds(line, kChain)) {
      text::passThrough(pass.in(), lasts, text::holding(kLastOfChain));
    } else {
      pass.out().line(line);
    }
  }
  pass.finish();
}

void removeIkChains(front::Session& session) {
  const front::Answer answer = session.front.messageBox(
      "This will remove all IK Chains from the file!  Are you sure you want to do this?", "Alert!",
      front::kYesNo);
  if (answer != front::Answer::yes) return;
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  session.hourglass(true);
  dropChains(session, scratch);
  session.disk.replace(scratch, session.opening.OpenedPath);
  session.hourglass(false);
  session.front.messageBox("IK Chains have been removed from the file.", "Note", front::kOk);
}

}  // namespace

void wireIkChains(front::Session& session) {
  session.opening.MenuDumpIK.clicked.add([&session] { removeIkChains(session); });
}

}  // namespace norvik::channels
