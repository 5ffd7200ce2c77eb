#include "channels/channel_listing.h"

#include "channels/channel_entry.h"
#include "channels/channel_scan.h"

namespace norvik::channels {

using text::anywhere;
using text::atStart;

void ChannelListing::run() {
  untilEndOfFile([this] {
    findFirstActor();
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
  });
}

std::string_view ChannelListing::nextLine() {
  const auto line = in_.line();
  ++count_;
  return line;
}

std::string_view ChannelListing::nextLine(const text::LineFilter& stops) {
  count_.add(in_.skipLines(stops));
  return nextLine();
}

std::string_view ChannelListing::nextField() {
  const auto field = in_.field();
  ++count_;
  return field;
}

void ChannelListing::enterActor(std::string_view line) {
  actor_ = text::from(line, 7);
  actorEntered();
}

void ChannelListing::findFirstActor() {
  static const text::LineFilter stops{atStart("actor"), atStart("prop")};
  for (;;) {
    const auto line = nextLine(stops);
    if (text::begins(line, "actor")) return enterActor(line);
    if (beginsAt(line)) return;
  }
}

/// Lists a morph without links, or leaves the first link to the caller. The line behind the header.
std::string_view ChannelListing::listMorph(std::string_view entryLine) {
  static const text::LineFilter stops{anywhere("interpStyleLocked")};
  internalName_ = text::from(entryLine, 14);
  link_.slaved = dialName(readName());
  morphMet(internalName_);
  nextLine(stops);
  const auto behind = nextLine();
  if (!text::holds(behind, "valueOpDeltaAdd")) {
    list_.add(actor_);
    list_.add(item_.assign("\t").append(link_.slaved));
  }
  return behind;
}

/// Lists a link under the last morph's dial, whatever channel holds it. The link's last line.
std::string_view ChannelListing::listLink() {
  const auto last = readLink();
  link_.ratio = text::after(last, " ");
  addErcItems(list_, actor_, link_);
  linkListed();
  return last;
}

void tellOfNoChannels(front::ListBox& list) {
  if (list.count() > 0) return;
  list.setFore(front::kListWarning);
  list.add("NO CHANNELS IN CR2");
}

}  // namespace norvik::channels
