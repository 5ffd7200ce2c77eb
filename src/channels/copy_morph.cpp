#include "channels/copy_morph.h"

#include "channels/copy_run.h"
#include "channels/morph_extract.h"
#include "channels/morph_merge.h"
#include "front/stoppable_pass.h"
#include "text/columns.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kUnusedFile = "\\SaveMorph1.txt";

bool mayStart(front::Session& session) {
  const front::Opening& opening = session.opening;
  if (opening.LabelFileName.caption() == opening.LabelChannelFileName.caption()) {
    session.front.messageBox(
        "To copy a morph channel you must have a source file open in the righthand pane.",
        "Information", front::kOk);
    return false;
  }
  if (opening.ListChannels.index() == 0) {
    session.front.messageBox("Click on a morph to copy.", "Note!", front::kOk);
    return false;
  }
  return true;
}

/// Copies one selected line into "\InsertMorph.txt". False ends the tool.
bool copyLine(front::Session& session, CopyRun& run, int index) {
  front::Opening& opening = session.opening;
  const std::string item{opening.ListChannels.item(index)};
  if (!item.starts_with('\t')) return true;
  opening.PictureCopyToDest.activate();
  if (text::holds(item, "ERC")) {
    session.front.messageBox(
        "You cannot delete or transfer a morph by choosing the ERC line, please choose another.",
        "Alert!", front::kOk);
    return false;
  }
  session.hourglass(true);
  chooseSearch(run, opening.ListChannels, index);
  bool extracted = false;
  front::runStoppable(session.front, [&] {
    extracted = extractMorph(session, run, item.substr(1));
    if (!extracted) return;
    session.hourglass(false);
    mergeMorph(session, run);
  });
  return extracted;
}

void offerResult(front::Session& session) {
  front::Opening& opening = session.opening;
  const std::string& proposed = opening.LabelFileNameForEditor.caption();
  const front::ResultOffer offer(session, opening.inProgramFolder(kMergedFile), opening.DestPath);
  const front::Answer answer =
      session.front.messageBox("Channel/s in " + opening.LabelChannelFileNameForEditor.caption() +
                                   " inserted into " + opening.DestPath + ".  Save changes?",
                               "Success!", front::kYesNo);
  if (answer != front::Answer::yes) return;
  front::CommonDialog& dialog = opening.CommonDialog2;
  if (!dialog.save(session.front, session.disk.currentFolder(), proposed, {},
                   {"Save the figure with the copied channels", front::kFigureFilter})) {
    return;
  }
  session.disk.replace(opening.inProgramFolder(kMergedFile), dialog.fileName());
}

void copyMorphs(front::Session& session) {
  front::Opening& opening = session.opening;
  if (!mayStart(session)) return;
  opening.OptionChannelRename.hide();
  opening.OptionBodyPartRename.hide();
  for (const std::string_view file : {kExtractFile, kUnusedFile}) {
    text::ignoringErrors([&] { session.disk.remove(opening.inProgramFolder(file)); });
  }
  CopyRun run;
  for (const int index : opening.ListChannels.selection()) {
    if (!copyLine(session, run, index)) return;
  }
  session.hourglass(false);
  if (run.inserted) {
    offerResult(session);
  } else {
    session.front.messageBox("Note that the channel may not have transfered properly!", "Error!",
                             front::kOk);
  }
  opening.PictureCopyToDest.rest();
}

}  // namespace

void wireCopyMorph(front::Session& session) {
  session.opening.PictureCopyToDest.released.add([&session](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) copyMorphs(session);
  });
}

}  // namespace norvik::channels
