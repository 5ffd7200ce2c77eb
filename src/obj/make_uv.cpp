#include "obj/make_uv.h"

#include "mesh/face_tokens.h"
#include "mesh/mesh_store.h"
#include "obj/flat_layout.h"
#include "obj/map_sheet.h"
#include "obj/name_listing.h"
#include "text/columns.h"
#include "text/line_reader.h"
#include "text/line_writer.h"
#include "text/rewrite_pass.h"
#include "workshop/reading.h"

namespace norvik::obj {

namespace {

constexpr std::string_view kResult = "\\UVNew.obj";
constexpr std::size_t kKeptOfARecord = 50;

bool isVertex(std::string_view line) {
  return text::begins(line, "v ");
}

/// Copies the first two lines and the first run of vertices behind them. What it returns is the
/// line that ended the run, or its last vertex at the end of the file. A file without vertices
/// there ends in an error of the read.
std::string copyVertices(text::LineReader& in, text::LineWriter& out) {
  constexpr int kHead = 2;
  for (int i = 0; i < kHead; ++i) out.line(in.line());
  std::string line;
  do {
    line = in.line();
  } while (!isVertex(line));
  while (isVertex(line)) {
    out.line(line);
    if (in.atEnd()) break;
    line = in.line();
  }
  return line;
}

void copyRecords(Workshop& workshop, text::LineWriter& out) {
  text::RecordReader faces = recordsOf(workshop.session, kFaceFile, kFaceRecordLength);
  const auto count = static_cast<std::uint64_t>(workshop.mesh.FaceCount);
  for (std::uint64_t number = 1; number <= count; ++number) {
    out.line(text::trimmed(text::leftmost(faces.get(number), kKeptOfARecord)));
  }
}

void writeResult(Workshop& workshop, const InventedUV& coordinates) {
  front::Session& session = workshop.session;
  const std::string source = session.opening.LabelOBJFileName.caption();
  const std::string result = session.opening.inProgramFolder(kResult);
  text::keepApart(session.disk, source, result);
  text::LineReader in(session.disk, source);
  text::LineWriter out(session.disk, result);
  const std::string last = copyVertices(in, out);
  coordinates.forEachLine([&out](std::string_view line) { out.line(line); });
  copyRecords(workshop, out);
  if (!last.empty() && last != "v") out.line(last);
  out.close();
}

void makeUV(Workshop& workshop) {
  if (workshop.reading || showUnsavedMap(workshop)) return;
  front::Session& session = workshop.session;
  front::FormOBJ& form = workshop.form;
  workshop.mesh.HasUV = false;
  workshop.closeMagnifier();
  workshop.showAlone(form.PictureUVMap);
  form.PictureUVMap.clear();
  const Reading reading(workshop);
  session.hourglass(true);
  // From here on the count is that of all records; another run adds the others to it once more.
  workshop.mesh.FaceCount += workshop.mesh.RecordExtra;
  FlatLayout layout(workshop);
  if (!layout.run()) return;
  session.hourglass(false);
  form.PictureUVMap.refresh();
  form.MapDrawn = 0;
  form.LabelSaveMap.show();
  showGroupListing(form);
  writeResult(workshop, layout.coordinates());
}

}  // namespace

void wireMakeUV(Workshop& workshop) {
  workshop.form.LabelMakeUV.clicked.add([&workshop] { makeUV(workshop); });
}

}  // namespace norvik::obj
