#include "channels/joints/joints.h"

#include "channels/channel_scan.h"
#include "channels/joints/insert_joint.h"
#include "channels/joints/joint_channel.h"
#include "figure/actor_entry.h"
#include "text/line_search.h"

namespace norvik::channels {

namespace {

using text::atStart;

bool refuses(front::Session& session, std::string_view text, std::string_view title) {
  session.front.messageBox(text, title, front::kOk);
  return true;
}

/// Whether something is in the way, of which the operator is told.
bool isRefused(front::Session& session) {
  constexpr std::size_t kComparedCaption = 20;
  constexpr std::string_view kNoSource = "Choose a source body part to work with.";
  constexpr std::string_view kNoDestination = "Choose a destination body part to work with.";
  const front::Opening& opening = session.opening;
  // Two files in different folders count as one when their paths end alike.
  if (text::rightmost(opening.LabelFileName.caption(), kComparedCaption) ==
      text::rightmost(opening.LabelChannelFileName.caption(), kComparedCaption)) {
    return refuses(session, "Open a source file first.", "Note!");
  }
  const auto source = opening.ListChannels.chosen();
  const auto destination = opening.ListActors.chosen();
  if (opening.ListChannels.selection().empty()) return refuses(session, kNoSource, "Alert!");
  if (opening.ListActors.selection().empty()) return refuses(session, kNoDestination, "Alert!");
  if (text::holds(source, "BODY") || text::holds(destination, "BODY")) {
    return refuses(session, "You can't work with the entire body....", "Alert!");
  }
  // A channel in the view of one part, or the blank entry of a storage section.
  if (!figure::namesActor(source)) return refuses(session, kNoSource, "Alert!");
  if (!figure::namesActor(destination)) return refuses(session, kNoDestination, "Alert!");
  return false;
}

/// Reads to the actor's own block: the first line of an actor behind the first channels that holds
/// the name. The joints of the actors in front name it too, as their child.
void passToActor(text::LineReader& in, const std::string& actor) {
  text::passThrough(in, {text::anywhere("channels")}, text::holding("channels"));
  text::passThrough(in, {atStart("actor")}, [&](std::string_view line) {
    return text::begins(line, "actor") && text::holds(line, actor);
  });
}

bool endsExtract(std::string_view line) {
  constexpr std::size_t kCompared = 10;
  const auto start = text::leftmost(line, kCompared);
  return text::begins(line, "actor") ||
         (text::holds(start, "taper") && !text::holds(start, "twist"));
}

/// Writes the source's channels from its first joint or twist to its tapers, to the next actor or
/// to the end of the file.
void extractJoints(front::Session& session, const std::string& actor) {
  const front::Opening& opening = session.opening;
  text::RewritePass pass(session.disk, opening.OpenedPath, opening.inProgramFolder(kJointFile));
  passToActor(pass.in(), actor);
  const std::string first = text::passThrough(
      pass.in(), {atStart("\t\tjoint"), atStart("\t\ttwist")}, beginsJointOrTwist);
  pass.out().line(first);
  untilEndOfFile([&] {
    text::copyUpTo(pass, {atStart("actor"), text::anywhere("taper")}, endsExtract);
  });
  pass.finish();
}

void transferJoints(front::Session& session) {
  if (isRefused(session)) return;
  const std::string source{session.opening.ListChannels.chosen()};
  const std::string destination{session.opening.ListActors.chosen()};
  session.hourglass(true);
  extractJoints(session, figure::actorName(source));
  InsertJoint(session, source, figure::actorName(destination));
}

}  // namespace

void wireJoints(front::Session& session) {
  session.opening.PictureJoints.released.add([&session](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) transferJoints(session);
  });
}

}  // namespace norvik::channels
