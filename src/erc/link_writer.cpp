#include "erc/link_writer.h"

#include "erc/link_block.h"
#include "erc/link_place.h"
#include "text/columns.h"
#include "text/line_copy.h"
#include "text/rewrite_pass.h"

namespace norvik::erc {

namespace {

constexpr std::string_view kHeaderEnd = "interpStyleLocked";

std::string_view question(Routine routine) {
  switch (routine) {
    case Routine::PBM:
      return "There is already a PBM here, do you want to add another?";
    case Routine::CM:
      return "There is already a CM here, do you want to add another?";
    case Routine::JCM:
      return "There is already a JCM here, do you want to add another?";
    case Routine::JCJ:
      return "There is already a JCJ or MCJ here, do you want to add another?";
    case Routine::JCT:
      return "There is already a JCT or MCT here, do you want to add another?";
  }
  return {};
}

class LinkWriter {
 public:
  LinkWriter(front::Session& session, FormECM& form, const KindOfLink& kind)
      : session_(session), form_(form), kind_(kind) {}

  void run() {
    text::keepApart(session_.disk, figure_, scratch_);
    text::ignoringErrors([this] { session_.disk.remove(scratch_); });
    const auto target = targetOf(kind_, form_.TextPBM1.text());
    if (!target || !isThere(*target)) {
      session_.front.messageBox("Something you entered was not found.", "Error!", front::kOk);
      rest();
      return;
    }
    const bool written = rewrite(*target);
    rest();
    if (written) save();
  }

 private:
  void rest() {
    session_.hourglass(false);
    form_.LabelWait.hide();
  }

  bool isThere(const Target& target) {
    return text::ignoringErrors([&] {
      text::LineReader in(session_.disk, figure_);
      passTarget(target, in);
    });
  }

  /// Writes the figure with the link in it. False if the operator wants no second link.
  bool rewrite(const Target& target) {
    text::RewritePass pass(session_.disk, figure_, scratch_);
    passTarget(target, pass.in(), &pass.out());
    passChannel(pass);
    text::copyThrough(pass.in(), pass.out(), kHeaderEnd);
    const std::string behind{pass.in().line()};
    const bool linked = text::holds(behind, kLinkStart);
    if (linked && !mayAdd()) {
      pass.finish();
      text::ignoringErrors([this] { session_.disk.remove(scratch_); });
      return false;
    }
    if (linked) passLink(pass, behind);
    for (const std::string& line : linkBlock(form_, kind_)) pass.out().line(line);
    if (!linked) pass.out().line(behind);
    pass.copyRest();
    pass.finish();
    return true;
  }

  /// From the part to the channel: the first line behind it that holds the channel's four letters,
  /// be it a link that names them.
  void passChannel(text::RewritePass& pass) {
    constexpr std::size_t kChannelLength = 4;
    const bool joint = kind_.routine == Routine::JCJ || kind_.kind == Kind::TCJ;
    if (!joint && (kind_.routine != Routine::JCT || kind_.kind == Kind::TCM)) return;
    const std::string& channel = joint ? form_.SlavedChannel : form_.SecondChannel;
    text::copyThrough(pass.in(), pass.out(), text::leftmost(channel, kChannelLength));
  }

  bool mayAdd() {
    return session_.front.messageBox(question(kind_.routine), "Question",
                                     front::kYesNo + front::kExclamation) == front::Answer::yes;
  }

  /// PBM and CM leave the old link out, so that the new one takes its place.
  void passLink(text::RewritePass& pass, const std::string& start) {
    constexpr int kLinesBehindStart = 4;
    const bool kept = kind_.routine != Routine::PBM && kind_.routine != Routine::CM;
    if (kept) pass.out().line(start);
    for (int i = 0; i < kLinesBehindStart; ++i) {
      const auto line = pass.in().line();
      if (kept) pass.out().line(line);
    }
  }

  void save() {
    front::CommonDialog& dialog = session_.opening.CommonDialog2;
    if (!dialog.save(session_.front, session_.disk.currentFolder(), figure_)) return;
    if (dialog.fileName() == figure_) {
      session_.disk.replace(scratch_, figure_);
    } else {
      session_.disk.rename(scratch_, dialog.fileName());
    }
    if (kind_.routine == Routine::PBM) form_.FileWritten = 1;
  }

  front::Session& session_;
  FormECM& form_;
  const KindOfLink& kind_;
  const std::string figure_ = session_.opening.LabelFileNameForEditor.caption();
  const std::string scratch_ = session_.opening.inProgramFolder(kLinkScratch);
};

}  // namespace

void writeLink(front::Session& session, FormECM& form, const KindOfLink& kind) {
  LinkWriter(session, form, kind).run();
}

}  // namespace norvik::erc
