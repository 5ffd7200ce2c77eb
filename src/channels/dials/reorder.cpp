#include "channels/dials/reorder.h"

#include "channels/actor_block.h"
#include "channels/dials/reorder_item.h"
#include "channels/dials/reorder_lists.h"
#include "front/stoppable_pass.h"
#include "text/line_search.h"

#include <optional>
#include <vector>

namespace norvik::channels {

namespace {

using text::anywhere;
using text::atStart;

constexpr std::string_view kScratch = "\\Reorder.cr2";
/// Opens the block behind the last actor: no channel stands behind it.
constexpr std::string_view kFigure = "figure";
constexpr std::string_view kTarget = "target";

/// One channel that is to be placed.
struct Channel {
  std::string internalName;
  std::string dial;
  std::string actor;
};

Channel channelOf(std::string_view item) {
  const std::string name{text::before(item, "#")};
  const ReorderItem rest(text::after(item, "#"));
  return {name, rest.dial(), rest.actor()};
}

/// The pass over the figure, which starts anew for each channel but the first.
class Reorder {
 public:
  Reorder(text::Disk& disk, const std::string& figure, const std::string& scratch)
      : disk_(disk), figure_(figure), pass_(disk, figure, scratch) {}

  void run(const std::vector<Channel>& channels) {
    copyHead(channels.back().actor);
    std::string line;
    for (std::size_t i = 0; i < channels.size(); ++i) {
      if (i > 0) in_.emplace(disk_, figure_);
      const bool last = i + 1 == channels.size();
      auto ended = place(channels[i], last);
      line = ended.line;
      if (ended.atFigure) break;
    }
    out().line(line);
    in().handOnLines({}, [this](std::string_view lines) { out().lines(lines); });
    pass_.finish();
  }

 private:
  struct End {
    std::string line;       ///< the line in front of which the placing ended
    bool atFigure = false;  ///< the search met the end of the actors: nothing more is placed
  };

  text::LineReader& in() { return in_ ? *in_ : pass_.in(); }
  text::LineWriter& out() { return pass_.out(); }

  /// Copies up to and including the brace of the actor's channels.
  void copyHead(const std::string& actor) {
    copyThroughSecond(pass_, ActorLine::holding(actor));
    text::copyThrough(pass_, {anywhere("channels")}, text::holding("channels"));
    out().line(in().line());
  }

  /// Finds a channel and copies it with all that follows up to the next one.
  End place(const Channel& channel, bool last) {
    const auto found = find(channel);
    if (!found) return {std::string{kFigure}, true};
    for (const std::string& line : *found) out().line(line);
    return {copyUpToNext(last), false};
  }

  /// The lines by which a channel is known: its entry, if that holds the dial's name, else with the
  /// two behind it. Two lines that were looked at are used up. Nothing at the end of the actors.
  std::optional<std::vector<std::string>> find(const Channel& channel) {
    static const text::LineFilter stops{anywhere(kTarget), atStart(kFigure)};
    for (;;) {
      in().passLines(stops);
      std::string entry{in().line()};
      if (entry == kFigure) return std::nullopt;
      if (!text::holds(entry, kTarget) || !text::holds(entry, channel.internalName)) continue;
      if (text::holds(entry, channel.dial)) return std::vector{std::move(entry)};
      std::string brace{in().line()};
      std::string name{in().line()};
      if (text::holds(name, channel.dial)) {
        return std::vector{std::move(entry), std::move(brace), std::move(name)};
      }
    }
  }

  std::string copyUpToNext(bool last) {
    static const text::LineFilter within{anywhere(kTarget), atStart(kFigure)};
    static const text::LineFilter atLast{anywhere(kTarget), atStart(kFigure), atStart("actor")};
    for (;;) {
      in().handOnLines(last ? atLast : within,
                       [this](std::string_view lines) { out().lines(lines); });
      const auto line = in().line();
      if (text::holds(line, kTarget) || line == kFigure || (last && text::begins(line, "actor"))) {
        return std::string{line};
      }
      out().line(line);
    }
  }

  text::Disk& disk_;
  std::string figure_;
  text::RewritePass pass_;
  std::optional<text::LineReader> in_;  ///< of the channels behind the first
};

void addReordered(front::Opening& opening) {
  for (const front::ListBox* list :
       {&opening.ListChannelsReorderNewOrder, &opening.ListChannelsReorderByPart}) {
    for (const std::string& item : list->items()) {
      opening.ListChannelsReorderReordered.add(ReorderItem(item).reordered());
    }
  }
}

void reorder(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.ListChannelsReorderReordered.clear();
  if (opening.ListChannelsReorderNewOrder.count() == 0) {
    opening.ListChannelsReorderByPart.clear();
    opening.ListChannelsReorderNewOrder.clear();
    hideReorderLists(opening);
    return;
  }
  addReordered(opening);
  std::vector<Channel> channels;
  for (const std::string& item : opening.ListChannelsReorderReordered.items()) {
    channels.push_back(channelOf(item));
  }
  const std::string scratch = opening.inProgramFolder(kScratch);
  session.hourglass(true);
  front::runStoppable(session.front,
                      [&] { Reorder(session.disk, opening.OpenedPath, scratch).run(channels); });
  hideReorderLists(opening);
  session.hourglass(false);
  const front::ResultOffer offer(session, scratch, opening.OpenedPath);
  front::CommonDialog& dialog = opening.CommonDialog2;
  if (!dialog.save(session.front, session.disk.currentFolder(), opening.OpenedPath, {},
                   {"Save the figure with its channels in the new order", front::kFigureFilter})) {
    return;
  }
  session.disk.replace(scratch, dialog.fileName());
}

}  // namespace

void wireReorder(front::Session& session) {
  wireReorderLists(session);
  session.opening.PictureChannelReorderDone.released.add([&session](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) reorder(session);
  });
}

}  // namespace norvik::channels
