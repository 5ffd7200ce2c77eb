#include "pose/mor_skeleton.h"

#include "pose/channel_lines.h"
#include "text/columns.h"
#include "text/line_reader.h"
#include "text/line_writer.h"
#include "text/rewrite_pass.h"

namespace norvik::pose {

namespace {

using text::anywhere;
using text::atStart;

class Skeleton {
 public:
  Skeleton(FormMOR& form, text::LineReader& in, text::LineWriter& out)
      : form_(form), in_(in), out_(out) {}

  void write() {
    copyHead();
    passGeometry();
    writeActors();
    closeActor();
    out_.line("}");
  }

 private:
  /// All in front of the first actor, but for the lines that name the geometry.
  void copyHead() {
    static const text::LineFilter stops{atStart("actor"), atStart("fig")};
    while (!in_.atEnd()) {
      in_.handOnLines(stops, [this](std::string_view lines) { out_.lines(lines); });
      if (in_.atEnd()) return;
      const auto line = in_.line();
      if (text::begins(line, "actor")) return;
      if (!text::begins(line, "fig")) out_.line(line);
    }
  }

  /// Past the actors that hold the geometry, to the next line that begins with "fig".
  void passGeometry() {
    static const text::LineFilter stops{atStart("fig")};
    in_.passLines(stops);
    if (!in_.atEnd()) static_cast<void>(in_.line());
  }

  void writeActors() {
    static const text::LineFilter stops{atStart("actor"), anywhere(kTargetGeom),
                                        anywhere(kValueParm)};
    while (!in_.atEnd()) {
      in_.passLines(stops);
      if (in_.atEnd()) return;
      auto line = in_.line();
      if (text::begins(line, "actor") && line != actor_) {
        openActor(std::string{line});
        line = in_.line();
      }
      if (text::holds(line, kTargetGeom)) addChannel(targetGeomName(line), line);
      if (text::holds(line, kValueParm)) addChannel(valueParmName(line), line);
    }
  }

  /// The third line of the actor is lost, and the one behind it is no actor, whatever it says.
  void openActor(std::string actorLine) {
    if (!actor_.empty()) closeActor();
    actor_ = std::move(actorLine);
    out_.line(actor_);
    out_.line(in_.line());
    static_cast<void>(in_.line());
    out_.line("\tchannels");
    out_.line("\t\t{");
  }

  void closeActor() {
    out_.line("\t\t}");
    out_.line("\t}");
  }

  void addChannel(std::string_view name, std::string_view line) {
    form_.ListMorphs.add(name);
    form_.ListValues.add("0");
    form_.actors.emplace_back(text::from(actor_, 7));
    writeChannel(out_, line, "\t\t\tk 0 0");
  }

  FormMOR& form_;
  text::LineReader& in_;
  text::LineWriter& out_;
  std::string actor_;  ///< the last `actor` line
};

}  // namespace

void writeMorSkeleton(front::Session& session, FormMOR& form) {
  const std::string path = session.opening.LabelFileNameForEditor.caption();
  const auto extension = text::extension(path);
  if (extension != "cr2" && extension != "hr2") return;
  session.hourglass(true);
  form.LabelFileName.setCaption(path);
  const std::string scratch = session.opening.inProgramFolder(kMorSkeleton);
  text::keepApart(session.disk, path, scratch);
  text::ignoringErrors([&] { session.disk.remove(scratch); });
  text::LineWriter out(session.disk, scratch, text::LineWriter::Mode::append);
  text::LineReader in(session.disk, path);
  Skeleton(form, in, out).write();
  out.close();
  session.hourglass(false);
}

}  // namespace norvik::pose
