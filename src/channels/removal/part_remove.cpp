#include "channels/removal/part_remove.h"

#include "channels/removal/part_removal.h"
#include "channels/removal/scratch_turns.h"
#include "channels/removal/trash.h"
#include "figure/actor_entry.h"
#include "figure/caption.h"
#include "figure/save_path.h"
#include "front/stoppable_pass.h"
#include "text/columns.h"

#include <optional>

namespace norvik::channels {

namespace {

constexpr std::string_view kScratch = "\\cr2.doc";
constexpr std::string_view kSecondScratch = "\\cr21.doc";

/// The chosen path, shortened by the length of the file that was open before.
std::string caption(const std::string& chosen, const std::string& opened) {
  constexpr std::size_t kLongest = 42;
  constexpr std::size_t kShown = 45;
  const std::string_view dots = opened.size() > kLongest ? "..." : "";
  return std::string{dots} + std::string{text::rightmost(chosen, kShown)};
}

void showSaved(front::Session& session, const std::string& path) {
  front::Opening& opening = session.opening;
  const std::vector<int> selection = opening.ListActors.selection();
  if (!selection.empty()) opening.ListActors.remove(selection.back());
  session.front.messageBox(
      "Body part/s removed from CR2.  All additional references to the removed body part/s have "
      "been changed to NULL. Be aware that this may have implications in your parent/child "
      "hierarchy and in the weld lines.",
      "Note!", front::kOk);
  opening.LabelFileName.setCaption(caption(path, opening.OpenedPath));
  opening.LabelFileNameForEditor.setCaption(path);
  opening.LabelFileSize.setCaption(figure::sizeInBytes(session.disk, path));
}

void offerResult(front::Session& session, const ScratchTurns& turns) {
  front::Opening& opening = session.opening;
  // With nothing selected there is none.
  std::optional<front::ResultOffer> offer;
  if (turns.hasResult()) offer.emplace(session, turns.result(), opening.OpenedPath);
  const front::Answer answer = session.front.messageBox(
      "You are about to remove one or more body parts.  Save changes?", "Alert!", front::kYesNo);
  if (answer != front::Answer::yes) return;
  const auto target =
      figure::chooseSavePath(session, opening.OpenedPath, "Save the figure without the body parts");
  if (!target) return;
  if (!turns.hasResult()) return tellUnconventional(session);
  session.disk.replace(turns.result(), *target);
  showSaved(session, *target);
}

}  // namespace

void removeParts(front::Session& session) {
  front::Opening& opening = session.opening;
  ScratchTurns turns(session.disk, opening.OpenedPath, opening.inProgramFolder(kScratch),
                     opening.inProgramFolder(kSecondScratch));
  for (const std::string_view file : {kScratch, kSecondScratch}) {
    text::ignoringErrors([&] { session.disk.remove(opening.inProgramFolder(file)); });
  }
  session.hourglass(true);
  for (const int index : opening.ListActors.selection()) {
    front::runStoppable(session.front, [&] {
      text::RewritePass pass(session.disk, turns.input(), turns.output());
      removePart(pass, figure::actorName(opening.ListActors.item(index)));
    });
    turns.next();
  }
  session.hourglass(false);
  offerResult(session, turns);
  restTrash(opening);
}

}  // namespace norvik::channels
