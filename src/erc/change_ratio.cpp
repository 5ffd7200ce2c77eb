#include "erc/change_ratio.h"

#include "erc/link_block.h"
#include "figure/save_path.h"
#include "front/finished_file.h"
#include "text/columns.h"
#include "text/line_copy.h"
#include "text/rewrite_pass.h"

#include <charconv>

namespace norvik::erc {

namespace {

constexpr std::string_view kScratch = "\\ChangeRatio.txt";

void chooseRatio(front::Session& session, FormListEMCs& form) {
  constexpr std::size_t kRatioColumn = 16;  // the word Ratio comes along
  if (form.ListEMCs.index() == front::ListBox::kNone) {
    session.front.messageBox("Click on a ratio to be changed.", "Note!", front::kOk);
    return;
  }
  const std::string item{form.ListEMCs.chosen()};
  if (!text::begins(item, "\tDelta")) {
    session.front.messageBox("Click on the line that lists the ratio you want to change.", "Note!",
                             front::kOk);
    return;
  }
  form.Label1.show();
  form.Text1.show();
  form.Text1.setText(text::from(item, kRatioColumn));
  form.setFocus(form.Text1);
}

/// The line of the selected ratio. An item that only looks like one has none.
std::uint64_t lineOfRatio(const FormListEMCs& form) {
  const auto entry = static_cast<std::size_t>(form.ListEMCs.index()) + 1;
  std::string_view text;
  if (entry < form.RatioLines.size()) text = form.RatioLines[entry];
  text.remove_prefix(std::min(text.rfind('#'), text.size()));
  std::uint64_t line = 0;
  if (!text.empty()) std::from_chars(text.data() + 1, text.data() + text.size(), line);
  if (line == 0) throw text::FileError(text::ErrorNumber::subscriptOutOfRange);
  return line;
}

void rewrite(const FormListEMCs& form, text::Disk& disk, text::LineWriter& out,
             std::string_view ratio) {
  const std::uint64_t line = lineOfRatio(form);
  text::LineReader in(disk, form.LabelTitle.caption());
  text::copyNext(in, out, line - 1);
  out.line(ratioLine(ratio));
  static_cast<void>(in.line());
  text::copyRest(in, out);
  out.close();
}

void save(front::Session& session, const std::string& scratch, const std::string& figure,
          const std::string& ratio) {
  const front::ResultOffer offer(session, scratch, figure);
  const front::Answer answer = session.front.messageBox(
      "Control Ratio changed to " + ratio + ".  Save changes?", "Note!", front::kYesNo);
  if (answer != front::Answer::yes) return;
  const auto chosen = figure::chooseSavePath(session, figure, "Save the figure with the new ratio");
  if (chosen != figure) return;
  session.disk.replace(scratch, figure);
  session.front.tellOf({.path = figure});
}

void changeRatio(front::Session& session, FormListEMCs& form) {
  if (!text::holds(form.ListEMCs.chosen(), "Delta")) {
    session.front.messageBox("Click on a DELTA line to change the ratio.", "Error!", front::kOk);
    return;
  }
  const std::string ratio = form.Text1.text();
  const std::string figure = form.LabelTitle.caption();
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  text::keepApart(session.disk, figure, scratch);
  text::ignoringErrors([&] { session.disk.remove(scratch); });
  text::LineWriter out(session.disk, scratch);
  session.hourglass(true);
  text::ignoringErrors([&] {
    rewrite(form, session.disk, out, ratio);
    save(session, scratch, figure, ratio);
  });
  form.Text1.setText({});
  session.hourglass(false);
}

}  // namespace

void wireChangeRatio(front::Session& session, FormListEMCs& form) {
  form.ListEMCs.clicked.add([&form] { form.setFocus(form.Text1); });
  form.ListEMCs.doubleClicked.add([&session, &form] { chooseRatio(session, form); });
  form.Text1.key.add([&session, &form](const std::string& key) {
    if (key == "Enter") changeRatio(session, form);
  });
}

}  // namespace norvik::erc
