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
class AllChannelsScan {
 public:
  AllChannelsScan(front::Opening& opening, text::LineReader& in) : opening_(opening), in_(in) {}

  void run(bool hair) {
    findFirstActor(hair);
    static const text::LineFilter stops{anywhere("targetGeom"), anywhere("valueOpDeltaAdd"),
                                        atStart("actor")};
    std::string line = nextLine(stops);
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
  std::string nextLine() {
    std::string line{in_.line()};
    ++count_;
    return line;
  }
  std::string nextLine(const text::LineFilter& stops) {
    count_.add(in_.skipLines(stops));
    return nextLine();
  }
  std::string nextField() {
    std::string field{in_.field()};
    ++count_;
    return field;
  }

  void enterActor(const std::string& line) {
    actor_ = text::from(line, 7);
    actorLine_ = count_.asSingle(-1);
  }

  void findFirstActor(bool hair) {
    static const text::LineFilter stops{atStart("actor"), atStart("prop")};
    for (;;) {
      const std::string line = nextLine(stops);
      if (text::begins(line, "actor")) return enterActor(line);
      if (hair && text::begins(line, "prop")) return;
    }
  }

  /// Lists a morph without links, or leaves the first link to the caller. The line behind the
  /// header.
  std::string listMorph(const std::string& entryLine) {
    static const text::LineFilter stops{anywhere("interpStyleLocked")};
    const std::string internalName{text::from(entryLine, 14)};
    nextLine();
    dial_ = dialName(nextLine());
    opening_.ListChannelsReorder.add(actor_ + "*" + dial_ + "^" + text::numberText(actorLine_) +
                                     "@" + internalName);
    nextLine(stops);
    std::string behind = nextLine();
    if (!text::holds(behind, "valueOpDeltaAdd")) {
      opening_.ListChannels.add(actor_);
      opening_.ListChannels.add("\t" + dial_);
    }
    return behind;
  }

  /// Lists a link under the last morph's dial, whatever channel holds it. The link's last line.
  std::string listLink() {
    ErcLink link;
    link.figure = nextField();
    link.group = nextField();
    link.master = nextField();
    std::string last = nextField();
    link.ratio = text::after(last, " ");
    link.slaved = dial_;
    addErcItems(opening_.ListChannels, actor_, link);
    return last;
  }

  front::Opening& opening_;
  text::LineReader& in_;
  text::LineCount count_;
  std::string actor_;
  float actorLine_ = 0;
  std::string dial_;
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
