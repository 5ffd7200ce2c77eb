#include "pose/weld_merge.h"

#include "pose/channel_lines.h"
#include "text/columns.h"
#include "text/rewrite_pass.h"

namespace norvik::pose {

namespace {

/// The lines that are copied behind a channel's own. In a channel without "keys" the third of them
/// is the key line, and what is replaced is the line behind it.
constexpr int kLinesToKey = 3;

std::string_view withoutBlanksInFront(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

/// The index of the first selected morph whose name holds `name`, or kNone. All that hold it up to
/// there count as found, selected or not; an empty name is in every one.
int findSetting(FormPZ2Combine& form, std::string_view name) {
  const front::ListBox& morphs = form.ListFile2;
  for (int i = 0; i < morphs.count(); ++i) {
    if (!text::holds(morphs.item(i), name)) continue;
    form.ListFoundMorphs.add(morphs.item(i));
    if (morphs.selected(i)) return i;
  }
  return front::ListBox::kNone;
}

}  // namespace

void mergePoses(front::Session& session, FormPZ2Combine& form) {
  static const text::LineFilter stops{text::atStart("actor"), text::anywhere(kTargetGeom),
                                      text::anywhere(kValueParm)};
  const std::string scratch = session.opening.inProgramFolder(kWelded);
  text::RewritePass pass(session.disk, form.LabelFileFirst.caption(), scratch);
  std::string actor;
  int index = 0;
  while (!pass.in().atEnd()) {
    pass.copyLines(stops);
    if (pass.in().atEnd()) break;
    const std::string line{pass.in().line()};
    pass.out().line(line);
    if (text::begins(line, "actor")) actor = text::from(line, 7);
    if (!channelLine(line)) continue;
    form.ListActors1.add(actor);
    for (int i = 0; i < kLinesToKey; ++i) pass.out().line(pass.in().line());
    const int setting = findSetting(form, withoutBlanksInFront(form.ListFile1.item(index++)));
    if (setting == front::ListBox::kNone) continue;
    pass.out().line(form.ListKeyLines.item(setting));
    static_cast<void>(pass.in().line());
  }
  pass.finish();
}

}  // namespace norvik::pose
