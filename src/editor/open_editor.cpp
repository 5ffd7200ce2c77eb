#include "editor/open_editor.h"

#include "editor/load_pane.h"
#include "editor/save_pane.h"
#include "front/screen_scale.h"

namespace norvik::editor {

namespace {

using front::Opening;

/// What a label that was never given a path is taken for.
bool isUnset(const std::string& path) {
  return path.empty() || path == "Label1";
}

void ResizeFormToScreenEd(front::Session& session, FormEditor& form) {
  const front::Screen screen = session.front.screen();
  const front::Box& box = form.box();
  if (box.width == screen.width && box.height == screen.height) return;
  form.ScaleX = screen.width / box.width;
  form.ScaleY = screen.height / box.height;
  front::scaleForm(form, form.ScaleX, form.ScaleY);
}

/// Shows the file in the left pane that the main form names.
void showNamedFile(front::Session& session, FormEditor& form) {
  Opening& opening = session.opening;
  const bool isSource = opening.LabelChannelFileName.fore() == kSourceShown;
  form.setCaption(
      (isSource ? opening.LabelChannelFileNameForEditor : opening.LabelFileNameForEditor)
          .caption());
  opening.LabelChannelFileName.setFore(front::kDestinationShown);
  opening.LabelFileName.setFore(front::kDestinationShown);
  if (isUnset(form.caption())) {
    form.setCaption(kNoFile);
    form.LabelFileSizeEd2.hide();
    form.LabelFileSizeEd1.show();
    return;
  }
  loadPane(session, form, Side::left, form.caption());
}

void openDestination(front::Session& session, FormEditor& form) {
  session.opening.LabelChannelFileName.setFore(front::kDestinationShown);
  session.load(form);
}

void openFromPicture(front::Session& session, FormEditor& form) {
  Opening& opening = session.opening;
  opening.OptionChannelRename.hide();
  opening.OptionBodyPartRename.hide();
  opening.PictureJoints.rest();
  opening.PictureViewChannels.rest();
  opening.PictureTrash.rest();
  if (opening.LabelFileName.caption() != opening.LabelChannelFileName.caption()) {
    opening.LabelFileName.setFore(kSourceShown);
    opening.LabelChannelFileName.setFore(kSourceShown);
  }
  session.load(form);
  opening.PathsEdited = false;
  session.hourglass(false);
}

/// Opens the editor on the destination; one that is open loads it into its left pane.
void openNamed(front::Session& session, FormEditor& form) {
  const bool isOpen = form.loaded();
  if (isOpen) offerToSave(session, form, Side::left);
  openDestination(session, form);
  if (isOpen) showNamedFile(session, form);
}

}  // namespace

void wireOpenEditor(front::Session& session, FormEditor& form) {
  Opening& opening = session.opening;
  opening.menuEditor.clicked.add([&] { session.load(form); });
  opening.LabelFileName.clicked.add([&] { openDestination(session, form); });
  opening.LabelChannelFileName.clicked.add([&] {
    if (opening.LabelChannelFileName.fore() != front::kDestinationShown) session.load(form);
  });
  opening.PictureEditor.released.add([&](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) openFromPicture(session, form);
  });
  session.routines.OpenInEditor = [&] { openNamed(session, form); };
  form.loading.add([&] {
    form.restoreStart();
    ResizeFormToScreenEd(session, form);
  });
  form.shown.add([&] { showNamedFile(session, form); });
}

}  // namespace norvik::editor
