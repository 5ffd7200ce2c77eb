#include "channels/mirror/mirror.h"

#include "channels/actor_block.h"
#include "channels/channel_entry.h"
#include "channels/mirror/mirrored_delta.h"
#include "front/finished_file.h"
#include "text/line_search.h"

#include <vector>

namespace norvik::channels {

namespace {

constexpr std::string_view kScratch = "\\mirmorph.cr2";
constexpr std::string_view kChannels = "\tchannels";
constexpr std::string_view kBlockEnd = "\t}";
constexpr std::string_view kMorphEnd = "\t\t\t}";

using Lines = std::vector<std::string>;

/// The morph's lines, from its entry to the first brace that closes at three tabs.
Lines readMorph(front::Session& session) {
  const std::string entry = morphLine(session.opening.MirrorMorph);
  text::LineReader in(session.disk, session.opening.OpenedPath);
  Lines lines{text::passThrough(in, {text::atStart(entry)},
                                [&](std::string_view line) { return line == entry; })};
  while (lines.back() != kMorphEnd) lines.emplace_back(in.line());
  return lines;
}

void mirrorLines(Lines& lines, const MirroredAxes& axes, std::string_view path) {
  if (!axes.any()) return;
  for (std::string& line : lines) {
    if (isDelta(line)) line = mirroredDelta(line, axes, path);
  }
}

/// Copies the figure with the lines as the first channel of the part. A block without channels gets
/// some in front of its end, and no braces that close them.
void insertMorph(front::Session& session, const std::string& part, const Lines& lines) {
  const front::Opening& opening = session.opening;
  text::RewritePass pass(session.disk, opening.OpenedPath, opening.inProgramFolder(kScratch));
  copyThroughSecond(pass, ActorLine::equal(part));
  const std::string place =
      text::copyUpTo(pass, {text::atStart(kChannels), text::atStart(kBlockEnd)},
                     [](std::string_view line) { return line == kChannels || line == kBlockEnd; });
  pass.out().line(kChannels);
  if (place == kChannels) {
    pass.out().line(pass.in().line());
  } else {
    pass.out().line("\t\t{");
  }
  for (const std::string& line : lines) pass.out().line(line);
  if (place != kChannels) pass.out().line(place);
  pass.copyRest();
  pass.finish();
}

bool asks(front::Session& session, const std::string& axis) {
  const front::Answer answer =
      session.front.messageBox("Mirror " + axis + " translations?", axis, front::kYesNo);
  return answer == front::Answer::yes;
}

void armMirror(front::Session& session) {
  front::Opening& opening = session.opening;
  if (opening.LabelChannelFileNameForEditor.caption() != opening.OpenedPath) {
    session.front.messageBox("This tool will not transfer between different figures.", "Error!",
                             front::kCritical);
    return;
  }
  opening.PictureMirror.show();
}

void chooseMorph(front::Session& session) {
  front::Opening& opening = session.opening;
  if (!opening.PictureMirror.visible() || opening.ListChannels.item(0) != "ALL CHANNELS") return;
  auto item = opening.ListChannels.chosen();
  if (item.starts_with('\t')) item.remove_prefix(1);
  opening.MirrorMorph = item;
  session.front.messageBox("Now doubleclick the body part to transfer this morph to.", "Note",
                           front::kOk);
}

}  // namespace

void mirrorOnto(front::Session& session, const std::string& part) {
  front::Opening& opening = session.opening;
  if (opening.MirrorMorph.empty()) return;
  const front::Answer answer =
      session.front.messageBox("Mirror the " + opening.MirrorMorph +
                                   " morph translations when applying to the " + part + "?",
                               "Alert!", front::kYesNoCancel);
  if (answer == front::Answer::cancel) {
    opening.MirrorMorph.clear();
    return;
  }
  MirroredAxes axes;
  if (answer == front::Answer::yes) {
    axes.x = asks(session, "X");
    axes.y = asks(session, "Y");
    axes.z = asks(session, "Z");
  }
  session.hourglass(true);
  const bool done = text::ignoringErrors([&] {
    Lines lines = readMorph(session);
    mirrorLines(lines, axes, opening.OpenedPath);
    insertMorph(session, part, lines);
  });
  session.hourglass(false);
  if (done) {
    session.front.tellOf({.path = opening.inProgramFolder(kScratch), .isScratch = true});
    return;
  }
  session.front.messageBox("Unexpected error, probably a malformed file!", "Error!",
                           front::kCritical);
}

void wireMirror(front::Session& session) {
  session.opening.menuMirror.clicked.add([&session] { armMirror(session); });
  session.opening.ListChannels.clicked.add([&session] { chooseMorph(session); });
  session.opening.PictureMirror.key.add([&session](const std::string& key) {
    if (key == "Escape") session.opening.PictureMirror.hide();
  });
}

}  // namespace norvik::channels
