#include "obj/surgery/mirror.h"

#include "front/stoppable_pass.h"
#include "mesh/face_tokens.h"
#include "mesh/mesh_store.h"
#include "mesh/obj_line.h"
#include "mesh/record_walk.h"
#include "obj/save_result.h"
#include "text/columns.h"
#include "text/line_reader.h"
#include "text/rewrite_pass.h"
#include "workshop/reset.h"

#include <algorithm>

namespace norvik::obj {

namespace {

constexpr std::string_view kVertexLines = "\\Mirror.txt";
constexpr std::string_view kResult = "\\MirrorOBJ.txt";

bool ask(front::Session& session, std::string_view text, std::string_view title) {
  return session.front.messageBox(text, title, front::kYesNo) == front::Answer::yes;
}

MirrorAxes askForAxes(front::Session& session) {
  MirrorAxes axes;
  axes.x = ask(session, "Mirror X translations?", "X");
  axes.y = ask(session,
               "Mirror Y translations? This may have unexpected results, be sure to back up.", "Y");
  axes.z = ask(session, "Mirror Z translations? This may have unexpected results also...", "Z");
  return axes;
}

/// Takes a word off the front, with all the blanks behind it.
std::string_view takeWithBlanks(std::string_view& text) {
  const std::size_t end = text.find_first_not_of(' ', std::min(text.find(' '), text.size()));
  const std::string_view word = text.substr(0, end);
  text.remove_prefix(word.size());
  return word;
}

std::string otherSign(std::string_view number) {
  if (text::begins(number, "-")) return std::string{number.substr(1)};
  return "-" + std::string{number};
}

void writeVertexLines(front::Session& session, const std::string& path, const MirrorAxes& axes) {
  text::ignoringErrors([&] { session.disk.remove(path); });
  text::LineWriter out(session.disk, path);
  for (RecordWalk walk(session, kVertexFile, kVertexRecordLength); walk.next();) {
    out.line(mirroredLine(text::trimmed(walk.record()), axes));
  }
  out.close();
}

bool isFace(std::string_view line) {
  return text::begins(line, "f ") || text::begins(line, "f\t") || text::begins(line, "fo ");
}

void writeMesh(front::Session& session, const std::string& source, const std::string& vertexLines,
               const std::string& result, bool turn) {
  text::RewritePass pass(session.disk, source, result);
  text::LineReader vertices(session.disk, vertexLines);
  static const text::LineFilter looked{text::atStart(" "), text::atStart("v"), text::atStart("f")};
  std::string buffer;
  for (;;) {
    pass.copyLines(looked);
    if (pass.in().atEnd()) break;
    const std::string_view line = withoutTabs(pass.in().line(), buffer);
    if (turn && isFace(line)) {
      pass.out().line(turnedRound(line));
    } else {
      pass.out().line(text::begins(line, "v ") ? vertices.line() : line);
    }
  }
  pass.finish();
}

void mirror(Workshop& workshop) {
  if (workshop.reading) return;
  front::Session& session = workshop.session;
  front::Opening& opening = session.opening;
  const MirrorAxes axes = askForAxes(session);
  const std::string source = opening.LabelOBJFileName.caption();
  session.hourglass(true);
  // Across one axis, or all three, a face looks the other way.
  const bool turned = (axes.x != axes.y) != axes.z;
  front::runStoppable(
      session.front, [&] { writeMirrored(session, axes, turned && workshop.form.TurnFacesRound); });
  session.hourglass(false);
  session.front.messageBox(
      source +
          " has been mirrored. Remember to delete the RSR file, or changes will not take effect. "
          "You may want to rename groups that have Left and Right in their names.  The mesh will "
          "now be displayed, after saving.",
      "Note!", front::kOk);
  if (const auto saved = saveResult(session, opening.inProgramFolder(kResult), source,
                                    {"Save the mirrored mesh", front::kMeshFilter})) {
    opening.LabelOBJFileName.setCaption(*saved);
    workshop.setTitle(*saved);
  }
  viewAnew(workshop);
}

}  // namespace

void writeMirrored(front::Session& session, const MirrorAxes& axes, bool turnFaces) {
  const std::string source = session.opening.LabelOBJFileName.caption();
  const std::string vertexLines = session.opening.inProgramFolder(kVertexLines);
  text::keepApart(session.disk, source, vertexLines);
  writeVertexLines(session, vertexLines, axes);
  writeMesh(session, source, vertexLines, session.opening.inProgramFolder(kResult), turnFaces);
}

std::string mirroredLine(std::string_view record, const MirrorAxes& axes) {
  constexpr std::size_t kFirstOfX = 3;
  const std::string_view numbers = text::from(record, kFirstOfX);
  std::string_view rest = numbers;
  rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
  std::string x{takeWithBlanks(rest)};
  const std::string_view behindX = rest;
  std::string y{takeWithBlanks(rest)};
  std::string z{rest};

  std::string line{record};
  if (axes.x) {
    // The other two do not put the "v " back.
    x = "v " + otherSign(x);
    line = x + std::string{behindX};
  }
  if (axes.y) {
    const bool doubled = text::begins(y, "-");
    y = otherSign(y);
    line = doubled ? std::string{numbers} + y + std::string{behindX} : x + y + z;
  }
  if (axes.z) {
    z = otherSign(z);
    line = x + y + z;
  }
  return line;
}

void wireMirror(Workshop& workshop) {
  workshop.form.LabelMirror.clicked.add([&workshop] { mirror(workshop); });
}

}  // namespace norvik::obj
