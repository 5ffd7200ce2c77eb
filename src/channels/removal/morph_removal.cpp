#include "channels/removal/morph_removal.h"

#include "channels/channel_entry.h"
#include "channels/channel_scan.h"
#include "text/line_search.h"

#include <array>

namespace norvik::channels {

namespace {

using text::anywhere;
using text::atStart;

constexpr std::string_view kMorph = "\t\ttargetGeom";
constexpr std::string_view kTwist = "\t\ttwist";
constexpr int kBlocks = 2;  // of an actor: its place in the hierarchy, and its channels

bool isMorph(std::string_view line) {
  return text::begins(line, kMorph);
}
bool isTwist(std::string_view line) {
  return text::begins(line, kTwist);
}

/// Copies through the first line that equals `wanted`. False at the end of the file.
bool copyThroughLine(text::RewritePass& pass, const std::string& wanted) {
  return untilEndOfFile([&] {
    text::copyThrough(pass, {atStart(wanted)},
                      [&](std::string_view line) { return line == wanted; });
  });
}

void copyLine(text::RewritePass& pass) {
  if (!pass.in().atEnd()) pass.out().line(pass.in().line());
}

/// Drops the entries whose first line holds the name, up to the actor's first twist channel.
void dropEntries(text::RewritePass& pass, const std::string& name) {
  static const text::LineFilter channels{atStart(kMorph), atStart(kTwist)};
  text::LineReader& in = pass.in();
  while (!in.atEnd()) {
    pass.copyLines(channels);
    if (in.atEnd()) return;
    std::string_view line = in.line();
    const bool dropped = isMorph(line) && text::holds(line, name);
    if (dropped) {
      do {
        in.passLines(channels);
        if (in.atEnd()) return;
        line = in.line();
      } while (!isMorph(line) && !isTwist(line));
    }
    pass.out().line(line);
    if (isTwist(line)) return;
    // Directly behind a removed one a second morph of the name stays, and all that follow it.
    if (dropped && text::holds(line, name)) return;
  }
}

void removeMorph(text::RewritePass& pass, const RemovedItem& item, const std::string& actor) {
  const std::string actorLine = "actor " + actor;
  for (int block = 0; block < kBlocks; ++block) {
    copyThroughLine(pass, actorLine);
    copyLine(pass);
  }
  dropEntries(pass, item.name);
}

constexpr std::size_t kBlockLines = 5;

/// Drops the first block that holds all values of the link. What the file ends in the middle of is
/// none.
void dropBlock(text::RewritePass& pass, const ErcLink& link) {
  std::array<std::string, kBlockLines> block;
  const auto holds = [&block](const std::string& value) {
    for (const std::string& line : block) {
      if (text::holds(line, value)) return true;
    }
    return false;
  };
  while (!pass.in().atEnd()) {
    std::size_t lines = 0;
    while (lines < kBlockLines && !pass.in().atEnd()) block[lines++] = pass.in().line();
    const bool found = lines == kBlockLines && holds(link.figure) && holds(link.group) &&
                       holds(link.master) && holds(link.ratio);
    if (found) return;
    for (std::size_t i = 0; i < lines; ++i) pass.out().line(block[i]);
  }
}

bool removeLink(text::RewritePass& pass, const RemovedItem& item) {
  if (!copyThroughLine(pass, morphLine(item.name))) return false;
  static const text::LineFilter headerEnd{anywhere("interp")};
  untilEndOfFile([&] { text::copyThrough(pass, headerEnd, text::holding("interp")); });
  dropBlock(pass, item.link);
  return true;
}

/// Removes nothing: such a channel is looked for as if it were an actor.
void copyTellingUse(front::Session& session, text::RewritePass& pass, const std::string& name) {
  const std::string actorLine = "actor " + name;
  for (int block = 0; block < kBlocks; ++block) {
    if (!copyThroughLine(pass, actorLine)) return;
  }
  const text::LineFilter stops{atStart(kMorph), atStart(kTwist), anywhere(name)};
  while (!pass.in().atEnd()) {
    pass.copyLines(stops);
    if (pass.in().atEnd()) return;
    const std::string line{pass.in().line()};
    pass.out().line(line);
    if (isMorph(line) || isTwist(line)) return;
    if (text::holds(line, name) && !text::holds(line, "name")) {
      session.front.messageBox(
          "Morph \"" + name + "\" is used by an ERC channel, which must be removed first.",
          "Alert!", front::kOk);
    }
  }
}

}  // namespace

bool removeItem(front::Session& session, text::RewritePass& pass, const RemovedItem& item,
                const std::string& actor) {
  bool found = true;
  switch (item.kind) {
    case RemovedItem::Kind::morph:
      removeMorph(pass, item, actor);
      break;
    case RemovedItem::Kind::link:
      found = removeLink(pass, item);
      break;
    case RemovedItem::Kind::channel:
      copyTellingUse(session, pass, item.name);
      break;
  }
  pass.copyRest();
  pass.finish();
  return found;
}

}  // namespace norvik::channels
