#include "pose/mor_builder.h"

#include "front/finished_file.h"
#include "pose/channel_lines.h"
#include "pose/mor_skeleton.h"
#include "text/columns.h"
#include "text/line_reader.h"
#include "text/line_writer.h"

namespace norvik::pose {

namespace {

constexpr std::string_view kResult = "\\Mor1.txt";

void showValue(FormMOR& form) {
  form.TextValue.setText(form.ListValues.item(form.ListMorphs.index()));
}

/// One value serves the morphs of one name in all actors.
void takeValue(FormMOR& form) {
  const front::ListBox& morphs = form.ListMorphs;
  if (morphs.index() == front::ListBox::kNone) return;
  for (int i = 0; i < morphs.count(); ++i) {
    if (morphs.item(i) == morphs.chosen()) form.ListValues.setItem(i, form.TextValue.text());
  }
}

void writeValues(const FormMOR& form, text::LineReader& in, text::LineWriter& out) {
  static const text::LineFilter stops{text::anywhere(kTargetGeom), text::anywhere(kValueParm)};
  constexpr int kLinesToKey = 3;
  int index = 0;
  while (!in.atEnd()) {
    in.handOnLines(stops, [&out](std::string_view lines) { out.lines(lines); });
    if (in.atEnd()) return;
    out.line(in.line());
    for (int i = 0; i < kLinesToKey; ++i) out.line(in.line());
    static_cast<void>(in.line());
    const std::string value{form.ListValues.item(index++)};
    out.line("\t\t\tk 0 ", text::begins(value, ".") ? "0" + value : value);
  }
}

void writeResult(front::Session& session, const FormMOR& form, const std::string& skeleton,
                 const std::string& result) {
  text::ignoringErrors([&] { session.disk.remove(result); });
  text::LineReader in(session.disk, skeleton);
  text::LineWriter out(session.disk, result, text::LineWriter::Mode::append);
  writeValues(form, in, out);
  out.close();
}

void finish(front::Session& session, FormMOR& form) {
  front::Opening& opening = session.opening;
  const std::string skeleton = opening.inProgramFolder(kMorSkeleton);
  const std::string result = opening.inProgramFolder(kResult);
  writeResult(session, form, skeleton, result);
  session.disk.remove(skeleton);
  front::CommonDialog& dialog = opening.CommonDialog2;
  const std::string proposed = dialog.fileName();
  if (dialog.save(session.front, session.disk.currentFolder(), proposed, {},
                  {"Save the MOR pose as", front::kPoseFilter})) {
    const bool saved =
        text::ignoringErrors([&] { session.disk.replace(result, dialog.fileName()); });
    if (saved) session.front.tellOf({.path = dialog.fileName()});
  }
  session.unload(form);
}

}  // namespace

void wireMorBuilder(front::Session& session, FormMOR& form) {
  session.opening.MenuMor.clicked.add([&session, &form] { session.load(form); });
  form.loading.add([&session, &form] {
    form.restoreStart();
    writeMorSkeleton(session, form);
  });
  form.ListMorphs.clicked.add([&form] { showValue(form); });
  form.ListMorphs.doubleClicked.add([&form] {
    if (form.ListMorphs.index() != front::ListBox::kNone) form.setFocus(form.TextValue);
  });
  form.TextValue.key.add([&form](const std::string& key) {
    if (key == "Enter") takeValue(form);
  });
  form.LabelDone.clicked.add([&session, &form] { finish(session, form); });
  form.LabelCancel.clicked.add([&session, &form] { session.unload(form); });
}

}  // namespace norvik::pose
