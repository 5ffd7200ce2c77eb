#include "channels/removal/morph_remove.h"

#include "channels/removal/morph_removal.h"
#include "channels/removal/scratch_turns.h"
#include "channels/removal/trash.h"
#include "figure/save_path.h"
#include "front/stoppable_pass.h"
#include "text/columns.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kScratch = "\\XMorph.txt";
constexpr std::string_view kSecondScratch = "\\XMorph1.txt";

/// What the question at the end speaks of.
struct Removed {
  int items = 0;
  RemovedItem last;
};

std::string question(const front::Opening& opening, const Removed& removed) {
  if (removed.items > 1) {
    return "Multiple morphs removed from " + opening.OpenedPath +
           ". Please remove any ERC channels using these morphs.  Save changes?";
  }
  const bool plain = removed.last.kind == RemovedItem::Kind::morph;
  return (plain ? "Morph \"" : "A morph in \"") + removed.last.name + "\" removed from " +
         opening.OpenedPath + ".  Save changes?";
}

/// Whether an item can be dealt with; the operator is told if not.
bool mayRemove(front::Session& session, std::string_view item) {
  if (item.empty()) {
    session.front.messageBox("No part clicked.", "Note!", front::kOk);
    restTrash(session.opening);
    return false;
  }
  if (text::holds(item, "ERC")) {
    // The trash stays armed.
    session.front.messageBox(
        "You cannot delete a morph by choosing the ERC line, please choose another.", "Alert!",
        front::kOk);
    return false;
  }
  return true;
}

bool removeSelected(front::Session& session, ScratchTurns& turns, Removed& removed) {
  front::Opening& opening = session.opening;
  constexpr std::size_t kNameColumn = 15;
  const std::string actor{text::from(opening.ListChannels.item(0), kNameColumn)};
  for (const int index : opening.ListChannels.selection()) {
    ++removed.items;
    if (!mayRemove(session, opening.ListChannels.item(index))) return false;
    removed.last = removedItem(opening.ListChannels, index);
    session.hourglass(true);
    // Opened before the scratch file is touched: a missing figure makes none.
    static_cast<void>(session.disk.openForReading(turns.input()));
    bool found = false;
    front::runStoppable(session.front, [&] {
      text::RewritePass pass(session.disk, turns.input(), turns.output());
      found = removeItem(session, pass, removed.last, actor);
    });
    session.hourglass(false);
    if (!found) {
      session.front.messageBox("This is a Full Body Morph, it cannot be removed!", "Error!",
                               front::kCritical);
      restTrash(opening);
      return false;
    }
    turns.next();
  }
  return true;
}

/// Takes the selected items out of the list, from the first to the last while it shrinks: an item
/// that moves up behind a removed one is not looked at.
void takeOutOfList(front::ListBox& list) {
  for (int index = 0; index < list.count(); ++index) {
    if (list.selected(index)) list.remove(index);
  }
}

void offerResult(front::Session& session, const ScratchTurns& turns, const Removed& removed) {
  front::Opening& opening = session.opening;
  const front::ResultOffer offer(session, turns.result(), opening.DestPath);
  const front::Answer answer =
      session.front.messageBox(question(opening, removed), "Success!", front::kYesNo);
  if (answer != front::Answer::yes) return;
  const auto target =
      figure::chooseSavePath(session, opening.OpenedPath, "Save the figure without the morphs");
  if (!target) return;
  if (!turns.hasResult()) return tellUnconventional(session);
  text::ignoringErrors([&] { session.disk.replace(turns.result(), *target); });
  takeOutOfList(opening.ListChannels);
}

}  // namespace

void MorphRemove(front::Session& session) {
  front::Opening& opening = session.opening;
  try {
    ScratchTurns turns(session.disk, opening.DestPath, opening.inProgramFolder(kScratch),
                       opening.inProgramFolder(kSecondScratch));
    text::ignoringErrors([&] { session.disk.remove(turns.result()); });
    Removed removed;
    if (!removeSelected(session, turns, removed)) return;
    offerResult(session, turns, removed);
  } catch (const text::FileError&) {
    session.hourglass(false);
    tellUnconventional(session);
  }
  restTrash(opening);
}

}  // namespace norvik::channels
