#include "channels/joints/insert_joint.h"

#include "channels/actor_block.h"
#include "channels/channel_scan.h"
#include "channels/joints/joint_channel.h"
#include "text/field_search.h"
#include "text/line_search.h"
#include "text/number_text.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kRenamed = "\\tempjoint.txt";
constexpr std::string_view kMerged = "\\Jnt.txt";

bool hasPart(front::Session& session, const std::string& part) {
  text::LineReader in(session.disk, session.opening.DestPath);
  const std::string actor = "actor " + part;
  return untilEndOfFile(
      [&] { text::passField(in, actor, [&](std::string_view field) { return field == actor; }); });
}

/// The source's actor with its colon, from its entry in the list: the figure number is taken for
/// one digit.
std::string actorWithColon(std::string_view entry) {
  constexpr std::size_t kBlankAndDigit = 2;
  return std::string{text::trimmed(text::withoutLast(text::before(entry, "*"), kBlankAndDigit))};
}

/// Puts the part's name in the place of the source's in each line of the extract that holds it;
/// what follows it in the line is lost.
void renameActor(front::Session& session, const std::string& actor, const std::string& part) {
  const std::string extract = session.opening.inProgramFolder(kJointFile);
  const std::string renamed = session.opening.inProgramFolder(kRenamed);
  const text::LineFilter names{text::anywhere(actor)};
  text::RewritePass pass(session.disk, extract, renamed);
  for (pass.copyLines(names); !pass.in().atEnd(); pass.copyLines(names)) {
    const auto line = pass.in().line();
    if (text::holds(line, actor)) {
      pass.out().line(text::before(line, actor), part);
    } else {
      pass.out().line(line);
    }
  }
  pass.finish();
  session.disk.replace(renamed, extract);
}

/// Copies the destination up to the first joint channel behind the part's second line, which it
/// leaves in hand.
std::string copyToJoints(text::RewritePass& pass, const std::string& part) {
  constexpr std::size_t kKeywordColumn = 3;
  copyThroughSecond(pass, ActorLine::beginning(part));
  return text::copyUpTo(pass, {text::anywhere("joint")}, [](std::string_view line) {
    return text::begins(text::from(line, kKeywordColumn), "joint");
  });
}

/// Passes over the extract up to its next channel. False when there is none left.
bool toNextChannel(JointWalk& extract) {
  while (extract.next() && !beginsJointOrTwist(*extract.next())) extract.pass();
  return extract.next().has_value();
}

/// Replaces the destination's channels, from its first joint channel on, by those of the extract,
/// and keeps what stands between them. The rest is the destination's own from the next actor on, or
/// when the extract has no channel left.
void replaceChannels(text::RewritePass& pass, const std::string& firstJoint,
                     text::LineReader& source) {
  text::LineWriter& out = pass.out();
  JointWalk extract(source);
  while (extract.next() && !beginsJoint(*extract.next())) extract.pass();
  JointWalk own(pass.in(), firstJoint);
  bool atChannel = true;
  while (own.next() && !text::begins(*own.next(), "actor")) {
    if (atChannel || beginsJointOrTwist(*own.next())) {
      if (!toNextChannel(extract)) break;
      extract.handOutChannel([&out](std::string_view line) { out.line(line); });
      own.handOutChannel([](std::string_view) {});
    } else {
      out.line(*own.next());
      own.pass();
    }
    atChannel = false;
  }
  if (own.next()) out.line(*own.next());
  pass.copyRest();
}

void merge(front::Session& session, const std::string& part) {
  const front::Opening& opening = session.opening;
  text::LineReader extract(session.disk, opening.inProgramFolder(kJointFile));
  text::RewritePass pass(session.disk, opening.DestPath, opening.inProgramFolder(kMerged));
  const std::string firstJoint = copyToJoints(pass, part);
  replaceChannels(pass, firstJoint, extract);
  pass.finish();
}

}  // namespace

void InsertJoint(front::Session& session, const std::string& sourceEntry, const std::string& part) {
  front::Opening& opening = session.opening;
  session.hourglass(true);
  if (!hasPart(session, part)) {
    session.hourglass(false);
    session.front.messageBox("This CR2 does not have a body part called " + part + ".", "Error!",
                             front::kOk);
    return;
  }
  renameActor(session, actorWithColon(sourceEntry), part);
  merge(session, part);
  session.hourglass(false);
  session.disk.replace(opening.inProgramFolder(kMerged), opening.DestPath);
  const auto bytes = static_cast<std::int64_t>(session.disk.size(opening.DestPath));
  opening.LabelFileSize.setCaption(text::wholeNumberText(bytes) + " bytes");
}

}  // namespace norvik::channels
