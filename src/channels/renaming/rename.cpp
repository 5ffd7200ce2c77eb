#include "channels/renaming/rename.h"

#include "channels/renaming/rename_passes.h"
#include "figure/actor_entry.h"
#include "figure/caption.h"
#include "figure/save_path.h"
#include "text/columns.h"

#include <optional>

namespace norvik::channels {

namespace {

// What RenameKind says.
constexpr int kAwaitsName = 48;
constexpr int kBodyPart = 481;

constexpr std::string_view kScratch = "\\RenMorph.txt";

/// What is renamed, and how its list shows it afterwards.
struct Renamed {
  front::ListBox* list = nullptr;
  int index = front::ListBox::kNone;
  std::string entry;
  std::string oldName;
  std::string newName;
};

void putAway(front::Opening& opening) {
  opening.TextMorphRename.setText("");
  opening.TextMorphRename.hide();
  opening.OptionChannelRename.hide();
  opening.OptionBodyPartRename.hide();
}

/// Whether a morph is chosen that can be renamed; the operator is told if not.
bool mayRenameMorph(front::Session& session) {
  front::Opening& opening = session.opening;
  if (opening.LabelFileNameForEditor.caption() != opening.LabelChannelFileNameForEditor.caption()) {
    session.front.messageBox(
        "To rename a morph channel in the righthand pane you must have the same file open in both "
        "panes.",
        "Information", front::kOk);
    opening.OptionChannelRename.hide();
    opening.OptionBodyPartRename.hide();
    return false;
  }
  const front::ListBox& list = opening.ListChannels;
  if (list.selection().empty() || list.index() == 0 || !list.chosen().starts_with('\t')) {
    session.front.messageBox("Click on a morph to be renamed.", "Note!", front::kOk);
    return false;
  }
  if (list.item(list.index() + 1).starts_with('\t')) {
    session.front.messageBox("You cannot rename an ERC channel with this tool yet.", "Note!",
                             front::kOk);
    return false;
  }
  return true;
}

void askForName(front::Session& session) {
  front::Opening& opening = session.opening;
  const auto chosen = [](const front::OptionButton& option) {
    return option.visible() && option.value();
  };
  const bool part = chosen(opening.OptionBodyPartRename);
  const bool morph = chosen(opening.OptionChannelRename);
  if (!part && !morph) {
    for (front::OptionButton* option :
         {&opening.OptionChannelRename, &opening.OptionBodyPartRename}) {
      option->setValue(false);
      option->show();
    }
    return;
  }
  if (morph && !mayRenameMorph(session)) return;
  if (part && opening.ListActors.index() == 0) {
    session.front.messageBox("Click on a body part to be renamed.", "Note!", front::kOk);
    return;
  }
  opening.TextMorphRename.show();
  opening.setFocus(opening.TextMorphRename);
  opening.RenameKind = kAwaitsName;
}

std::string chosenText(const front::ListBox& list) {
  return list.selection().empty() ? std::string{} : std::string{list.chosen()};
}

int firstHolder(const front::ListBox& list, const std::string& text) {
  int index = 0;
  while (!text::holds(list.item(index), text)) ++index;
  return index;
}

/// Nothing when no body part's entry is chosen.
std::optional<Renamed> renameChosenPart(front::Opening& opening, text::RewritePass& pass,
                                        const std::string& newName) {
  front::ListBox& list = opening.ListActors;
  const std::string chosen{text::from(chosenText(list), 2)};
  if (!figure::namesActor(chosen)) return std::nullopt;
  const std::string name = figure::actorName(chosen);
  const auto colon = name.find(':');
  if (colon == std::string::npos) return std::nullopt;
  const int index = firstHolder(list, chosen);
  list.clearSelection();
  list.choose(index);
  const std::string_view item = list.item(index);
  Renamed renamed{&list, index, "    " + newName, name.substr(0, colon), newName};
  renamed.entry += item.substr(item.find(':'));
  renamePart(pass, {name, newName + name.substr(colon)});
  return renamed;
}

Renamed renameChosenMorph(front::Opening& opening, text::RewritePass& pass,
                          const std::string& newName) {
  front::ListBox& list = opening.ListChannels;
  const std::string name{text::from(chosenText(list), 2)};
  renameMorph(pass, name, newName);
  return {&list, list.index(), "\t" + newName, name, newName};
}

std::optional<Renamed> runPass(front::Session& session) {
  front::Opening& opening = session.opening;
  const std::string newName = opening.TextMorphRename.text();
  opening.OpenedPath = opening.LabelFileNameForEditor.caption();
  text::RewritePass pass(session.disk, opening.OpenedPath, opening.inProgramFolder(kScratch));
  if (opening.RenameKind == kBodyPart) return renameChosenPart(opening, pass, newName);
  return renameChosenMorph(opening, pass, newName);
}

bool wantsToSave(front::Session& session, const Renamed& renamed) {
  front::Opening& opening = session.opening;
  const front::ResultOffer offer(session, opening.inProgramFolder(kScratch), opening.OpenedPath);
  const std::string word = opening.RenameKind == kBodyPart ? "Body Part \"" : "Morph \"";
  const front::Answer answer = session.front.messageBox(
      word + renamed.oldName + "\" renamed in " + opening.LabelFileName.caption() + " as \"" +
          renamed.newName + "\"  Save changes?",
      "Success!", front::kYesNo);
  return answer == front::Answer::yes;
}

/// Shows the new name at its place; nothing is selected afterwards.
void showEntry(const Renamed& renamed) {
  if (renamed.index == front::ListBox::kNone) return;
  std::vector<std::string> items = renamed.list->items();
  items[static_cast<std::size_t>(renamed.index)] = renamed.entry;
  renamed.list->clear();
  for (const std::string& item : items) renamed.list->add(item);
}

void showSaved(front::Session& session, const std::string& path) {
  front::Opening& opening = session.opening;
  opening.LabelFileName.setCaption(figure::shortenedPath(path));
  opening.LabelFileNameForEditor.setCaption(path);
  opening.LabelChannelFileName.setCaption(opening.LabelFileName.caption());
  opening.LabelFileSize.setCaption(figure::sizeInBytes(session.disk, path));
}

/// False for an error of the pass that is not the disk's.
bool renameAndSave(front::Session& session) {
  front::Opening& opening = session.opening;
  const auto renamed = runPass(session);
  session.hourglass(false);
  if (!renamed) return false;
  const bool wanted = wantsToSave(session, *renamed);
  putAway(opening);
  if (!wanted) return true;
  const auto target = figure::chooseSavePath(session, opening.LabelFileNameForEditor.caption(),
                                             "Save the figure with the new name");
  if (!target) return true;
  session.disk.replace(opening.inProgramFolder(kScratch), *target);
  showSaved(session, *target);
  showEntry(*renamed);
  return true;
}

void rename(front::Session& session) {
  front::Opening& opening = session.opening;
  if (opening.OptionBodyPartRename.value()) opening.RenameKind = kBodyPart;
  session.hourglass(true);
  bool done = false;
  text::ignoringErrors([&] { done = renameAndSave(session); });
  if (done) return;
  session.hourglass(false);
  session.front.messageBox("Unconventional CR2, or you chose a Full Body Morph, cannot process.",
                           "Error!", front::kOk);
  putAway(opening);
}

void goOn(front::Session& session) {
  const front::Opening& opening = session.opening;
  if (opening.RenameKind == kAwaitsName && opening.TextMorphRename.visible()) {
    rename(session);
  } else {
    askForName(session);
  }
}

}  // namespace

void wireRename(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.PictureRenameMorph.released.add([&session](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) goOn(session);
  });
  opening.TextMorphRename.key.add([&session](const std::string& key) {
    if (key == "Enter") goOn(session);
  });
  const auto escape = [&opening](const std::string& key) {
    if (key == "Escape") putAway(opening);
  };
  opening.TextMorphRename.key.add(escape);
  opening.OptionChannelRename.key.add(escape);
  opening.OptionBodyPartRename.key.add(escape);
  opening.key.add(escape);
}

}  // namespace norvik::channels
