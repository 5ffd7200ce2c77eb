#include "erc/link_builder.h"

#include "erc/link_opening.h"
#include "erc/link_walk.h"
#include "front/screen_scale.h"

namespace norvik::erc {

void wireLinkBuilder(front::Session& session, DialogERC& dialog, FormECM& form) {
  session.opening.PictureEMC.released.add([&session, &dialog](front::Mouse mouse) {
    if (mouse.button != front::MouseButton::left) return;
    dialog.OptionJCM.setValue(true);  // also of a dialog that is on view already
    session.load(dialog);
  });
  dialog.loading.add([&dialog] { dialog.OptionJCM.setValue(true); });
  dialog.LabelDone.clicked.add([&session, &form] { session.loadModal(form); });
  dialog.LabelCancel.clicked.add([&session, &dialog] { session.unload(dialog); });
  form.loading.add([&session, &form] {
    form.restoreStart();
    front::scaleToScreen(session, form);
  });
  form.shown.add([&session, &dialog, &form] { openLinkForm(session, dialog, form); });
  wireLinkWalk(session, form);
}

}  // namespace norvik::erc
