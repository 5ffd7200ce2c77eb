#include "pose/pose_builder.h"

#include "front/finished_file.h"
#include "text/columns.h"
#include "text/line_reader.h"
#include "text/line_writer.h"
#include "text/rewrite_pass.h"

namespace norvik::pose {

namespace {

using text::anywhere;
using text::atStart;

constexpr std::string_view kScratch = "\\Pose.txt";
constexpr std::string_view kActor = "actor";
/// The line in front of a figure's closing section, blank and all. A file that spells it without
/// the blank is read to its end.
constexpr std::string_view kClosing = "figure ";
constexpr int kHeadLines = 7;

/// The name that an `actor` line is chosen by; nothing if it has no colon.
std::string_view partName(std::string_view actorLine) {
  const auto name = text::from(actorLine, 7);
  return text::holds(name, ":") ? text::before(name, ":") : std::string_view{};
}

/// The walk over the source, from its head on.
class PartCopy {
 public:
  PartCopy(const FormPZ2& form, text::LineReader& in, text::LineWriter& out)
      : wanted_(form.ListActorsWanted), in_(in), out_(out) {}

  void run() {
    while (passToActor()) {
      bool more = true;
      while (more) {
        // A name that is chosen twice takes the next block along, whatever part that is.
        const std::string name{partName(line_)};
        bool copied = false;
        for (const std::string& item : wanted_.items()) {
          if (item != name) continue;
          if (!copyBlock()) return;
          copied = true;
        }
        more = copied;
      }
    }
  }

 private:
  /// Reads on to the next `actor` line; false where the walk ends.
  bool passToActor() {
    while (!in_.atEnd()) {
      in_.passLines(stops_);
      if (in_.atEnd()) return false;
      line_ = in_.line();
      if (line_ == kClosing) return false;
      if (text::begins(line_, kActor)) return true;
    }
    return false;
  }

  /// Writes the line in hand and all up to the next `actor` line, which is then in hand. False
  /// where the walk ends.
  bool copyBlock() {
    out_.line(line_);
    while (!in_.atEnd()) {
      in_.handOnLines(stops_, [this](std::string_view lines) { out_.lines(lines); });
      if (in_.atEnd()) return false;
      line_ = in_.line();
      if (line_ == kClosing) return false;
      if (text::begins(line_, kActor)) return true;
      out_.line(line_);
    }
    return false;
  }

  const text::LineFilter stops_{atStart(kActor), atStart(kClosing)};
  const front::ListBox& wanted_;
  text::LineReader& in_;
  text::LineWriter& out_;
  std::string line_;
};

void copyHead(const FormPZ2& form, text::LineReader& in, text::LineWriter& out) {
  for (int i = 0; i < kHeadLines; ++i) out.line(in.line());
  if (text::extension(form.path) != "pz3") return;
  static const text::LineFilter stops{anywhere("figureRes"), anywhere("\"")};
  for (;;) {
    in.passLines(stops);
    const auto field = in.field();
    if (!text::begins(field, "figureRes")) continue;
    out.line(field);
    return;
  }
}

void writePose(front::Session& session, const FormPZ2& form, const std::string& scratch) {
  text::keepApart(session.disk, form.path, scratch);
  text::LineWriter out(session.disk, scratch, text::LineWriter::Mode::append);
  text::LineReader in(session.disk, form.path);
  copyHead(form, in, out);
  PartCopy(form, in, out).run();
  out.line("}");
  out.close();
}

/// An old pose that cannot be deleted is in the way of the new one, and makes the rename fail.
void putInPlace(text::Disk& disk, const std::string& scratch, const std::string& target) {
  const bool stays = disk.folderExists(target) || (disk.exists(target) && disk.isReadOnly(target));
  if (stays) return disk.rename(scratch, target);
  disk.replace(scratch, target);
}

}  // namespace

void buildPose(front::Session& session, FormPZ2& form) {
  session.hourglass(true);
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  writePose(session, form, scratch);
  const std::string target = std::string{text::before(form.path, ".")} + "New.pz2";
  putInPlace(session.disk, scratch, target);
  session.hourglass(false);
  form.ListActorsPZ2.clear();
  form.path.clear();
  session.front.tellOf({.path = target});
  session.front.messageBox("New pose saved as " + target, "Note!", front::kOk);
  session.unload(form);
}

}  // namespace norvik::pose
