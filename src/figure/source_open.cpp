#include "figure/source_open.h"

#include "figure/actor_lister.h"
#include "figure/bracket_checker.h"
#include "figure/caption.h"
#include "text/columns.h"

namespace norvik::figure {

namespace {

void openSource(front::Session& session) {
  front::Opening& opening = session.opening;
  leaveBracketCheck(opening);
  if (opening.LabelFileName.caption().empty()) {
    session.front.messageBox("Open a destination file first.", "Note!", front::kOk);
    return;
  }
  const bool chosen =
      opening.CommonDialog3.open(session.front, session.disk.currentFolder(), {},
                                 {"Open a source figure to copy from", front::kCharacterFilter});
  if (!chosen || opening.CommonDialog3.fileName().empty()) return;
  opening.OpenedPath = opening.CommonDialog3.fileName();
  if (text::extension(opening.OpenedPath) != "cr2") {
    session.front.messageBox("CR2 files only!", "Error!", front::kOk);
    return;
  }
  session.offerToClearReadOnly(opening.OpenedPath);
  opening.PictureJoints.rest();
  opening.PictureViewChannels.rest();
  opening.PictureTrash.rest();
  opening.ListChannels.clear();
  opening.LabelChannelFileName.setCaption(shortenedPath(opening.OpenedPath));
  opening.LabelChannelFileNameForEditor.setCaption(opening.OpenedPath);
  opening.ListChannels.add("BODY PARTS");
  ListTheActors(session, opening.OpenedPath);
}

}  // namespace

void wireSourceOpen(front::Session& session) {
  session.opening.LabelOpenSource.released.add([&session](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) openSource(session);
  });
}

}  // namespace norvik::figure
