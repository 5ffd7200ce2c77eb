#include "channels/channel_views.h"

#include "channels/channel_entry.h"
#include "channels/channel_scan.h"
#include "channels/erc_details.h"
#include "channels/part_view.h"
#include "text/line_reader.h"
#include "text/number_text.h"

namespace norvik::channels {

namespace {

using text::anywhere;
using text::atStart;

/// One forward read of all actors. Reads at the end of the file throw, which ends the scan.
///
/// Lines are looked at where they were read, and what is kept or listed is built in texts that are
/// used again: a figure has ten thousand morphs, and the list must be there at once.
class AllChannelsScan {
 public:
  AllChannelsScan(front::Opening& opening, text::LineReader& in) : opening_(opening), in_(in) {}

  void run(bool hair) {
    findFirstActor(hair);
    static const text::LineFilter stops{anywhere("targetGeom"), anywhere("valueOpDeltaAdd"),
                                        atStart("actor")};
    std::string_view line = nextLine(stops);
    for (;;) {
      if (text::begins(line, "actor")) enterActor(line);
      if (text::holds(line, "valueOpDeltaAdd")) {
        line = listLink();
      } else if (text::holds(line, "targetGeom")) {
        line = listMorph(line);
      } else {
        line = nextLine(stops);
      }
    }
  }

 private:
  // What these return is good until the next of them.

  std::string_view nextLine() {
    const auto line = in_.line();
    ++count_;
    return line;
  }
  std::string_view nextLine(const text::LineFilter& stops) {
    count_.add(in_.skipLines(stops));
    return nextLine();
  }
  std::string_view nextField() {
    const auto field = in_.field();
    ++count_;
    return field;
  }

  void enterActor(std::string_view line) {
    actor_ = text::from(line, 7);
    actorLine_ = text::numberText(count_.asSingle(-1));
  }

  void findFirstActor(bool hair) {
    static const text::LineFilter stops{atStart("actor"), atStart("prop")};
    for (;;) {
      const auto line = nextLine(stops);
      if (text::begins(line, "actor")) return enterActor(line);
      if (hair && text::begins(line, "prop")) return;
    }
  }

  /// Lists a morph without links, or leaves the first link to the caller. The line behind the
  /// header.
  std::string_view listMorph(std::string_view entryLine) {
    static const text::LineFilter stops{anywhere("interpStyleLocked")};
    internalName_ = text::from(entryLine, 14);
    nextLine();
    link_.slaved = dialName(nextLine());
    item_.assign(actor_).append("*").append(link_.slaved).append("^");
    item_.append(actorLine_).append("@").append(internalName_);
    opening_.ListChannelsReorder.add(item_);
    nextLine(stops);
    const auto behind = nextLine();
    if (!text::holds(behind, "valueOpDeltaAdd")) {
      opening_.ListChannels.add(actor_);
      opening_.ListChannels.add(item_.assign("\t").append(link_.slaved));
    }
    return behind;
  }

  /// Lists a link under the last morph's dial, whatever channel holds it. The link's last line.
  std::string_view listLink() {
    link_.figure = nextField();
    link_.group = nextField();
    link_.master = nextField();
    const auto last = nextField();
    link_.ratio = text::after(last, " ");
    addErcItems(opening_.ListChannels, actor_, link_);
    return last;
  }

  front::Opening& opening_;
  text::LineReader& in_;
  text::LineCount count_;
  std::string actor_;
  std::string actorLine_ = text::numberText(0);
  ErcLink link_;  ///< the last link; `slaved` is the last morph's dial
  std::string internalName_;
  std::string item_;
};

}  // namespace

void ViewChannels(front::Session& session, const std::string& path) {
  front::Opening& opening = session.opening;
  opening.ListChannels.setFore(front::kListNormal);
  opening.ListChannelsReorder.clear();
  const bool sourceOpen = opening.LabelFileName.caption() != opening.LabelChannelFileName.caption();
  const front::Label& file =
      sourceOpen ? opening.LabelChannelFileNameForEditor : opening.LabelFileNameForEditor;
  text::LineReader in(session.disk, file.caption());
  untilEndOfFile([&] { AllChannelsScan(opening, in).run(text::extension(path) == "hr2"); });
  if (opening.ListChannels.count() == 0) {
    opening.ListChannels.setFore(front::kListWarning);
    opening.ListChannels.add("NO CHANNELS IN CR2");
  }
}

void wireChannelViews(front::Session& session) {
  session.routines.ViewChannels = [&session](const std::string& path) {
    ViewChannels(session, path);
  };
  wirePartView(session);
}

}  // namespace norvik::channels
