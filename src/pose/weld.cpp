#include "pose/weld.h"

#include "front/finished_file.h"
#include "pose/weld_lists.h"
#include "pose/weld_merge.h"
#include "pose/weld_missing.h"
#include "text/columns.h"
#include "text/rewrite_pass.h"

#include <initializer_list>

namespace norvik::pose {

namespace {

bool isPose(front::Session& session, std::string_view path) {
  if (text::extension(path) == "pz2") return true;
  session.front.messageBox("PZ2 files only!", "Error!", front::kCritical);
  return false;
}

void loadFirst(front::Session& session, FormPZ2Combine& form) {
  form.restoreStart();
  form.LabelFileFirst.setCaption(session.opening.LabelFileNameForEditor.caption());
  session.hourglass(true);
  listFirstFile(session, form);
  session.hourglass(false);
}

void openSecond(front::Session& session, FormPZ2Combine& form) {
  front::CommonDialog& dialog = session.opening.CommonDialog1;
  if (!dialog.open(session.front, session.disk.currentFolder(), {},
                   {"Open the pose to weld to the first", front::kPoseFilter})) {
    return;
  }
  if (!isPose(session, dialog.fileName())) return;
  // Not ListTGVP: the kinds at its top stay those of the file before.
  for (front::ListBox* list : {&form.ListKeyLines, &form.ListFile2, &form.ListFoundMorphs,
                               &form.ListNotFound, &form.ListActors2}) {
    list->clear();
  }
  form.LabelFileSecond.setCaption(dialog.fileName());
  session.hourglass(true);
  listSecondFile(session, form);
  session.hourglass(false);
}

/// A key line that begins with a tab shows as nothing.
void showKey(const front::ListBox& morphs, const front::ListBox& keyLines, front::Label& label) {
  label.setCaption(text::before(keyLines.item(morphs.index()), "\t"));
}

void weld(front::Session& session, FormPZ2Combine& form) {
  const std::string result = session.opening.inProgramFolder(kWelded);
  const std::string& first = form.LabelFileFirst.caption();
  text::keepApart(session.disk, first, session.opening.inProgramFolder(kWeldedMore));
  session.hourglass(true);
  mergePoses(session, form);
  listMissing(form);
  if (form.ListNotFound.count() > 0) insertMissing(session, form);
  session.hourglass(false);
  if (form.ListNotFound.count() > 0) tellMissing(session, form);

  front::CommonDialog& dialog = form.CommonDialogSave;
  const std::string proposed = dialog.fileName();
  if (!dialog.save(session.front, session.disk.currentFolder(), proposed, {},
                   {"Save the welded pose as", front::kPoseFilter})) {
    return;
  }
  session.disk.replace(result, dialog.fileName());
  session.front.tellOf({.path = dialog.fileName()});
  session.unload(form);
}

}  // namespace

void wireWelder(front::Session& session, FormPZ2Combine& form) {
  front::Opening& opening = session.opening;
  opening.menuCombinePZ2.clicked.add([&session, &opening, &form] {
    if (isPose(session, opening.LabelFileNameForEditor.caption())) session.load(form);
  });
  form.loading.add([&session, &form] { loadFirst(session, form); });
  form.LabelOpenSecond.clicked.add([&session, &form] { openSecond(session, form); });
  form.ListFile1.clicked.add(
      [&form] { showKey(form.ListFile1, form.ListKeyLinesFirst, form.LabelKey1); });
  form.ListFile2.clicked.add(
      [&form] { showKey(form.ListFile2, form.ListKeyLines, form.LabelKey2); });
  form.LabelDone.clicked.add([&session, &form] { weld(session, form); });
  form.LabelCancel.clicked.add([&session, &form] { session.unload(form); });
}

}  // namespace norvik::pose
