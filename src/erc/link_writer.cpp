#include "erc/link_writer.h"

#include "erc/link_block.h"
#include "erc/link_place.h"
#include "figure/save_path.h"
#include "front/finished_file.h"
#include "text/line_search.h"

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
    // The first line behind the part that holds the channel, be it a link that names it.
    if (const auto channel = channelOf(kind_, form_)) copyThrough(pass, *channel);
    copyThrough(pass, kHeaderEnd);
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

  static void copyThrough(text::RewritePass& pass, std::string_view token) {
    text::copyThrough(pass, {text::anywhere(token)}, text::holding(token));
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
    const auto chosen =
        figure::chooseSavePath(session_, figure_, "Save the figure with the new link");
    if (!chosen) return;
    if (*chosen == figure_) {
      session_.disk.replace(scratch_, figure_);
    } else {
      session_.disk.rename(scratch_, *chosen);
    }
    if (kind_.routine == Routine::PBM) form_.FileWritten = 1;
    session_.front.tellOf({.path = *chosen});
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
