#include "obj/surgery/merge.h"

#include "front/stoppable_pass.h"
#include "mesh/face_tokens.h"
#include "mesh/mesh_store.h"
#include "mesh/record_walk.h"
#include "obj/save_result.h"
#include "obj/surgery/merge_lines.h"
#include "text/columns.h"
#include "text/rewrite_pass.h"
#include "workshop/reset.h"

namespace norvik::obj {

namespace {

constexpr std::string_view kScratch = "\\Merge.txt";
constexpr std::string_view kCopy = "\\MergeCopy.txt";
constexpr std::string_view kResult = "\\MergeTest.obj";

/// Writes the two meshes' records in the order of an OBJ file, and counts those of the first one.
class MergePass {
 public:
  MergePass(Workshop& workshop, const std::string& path)
      : session_(workshop.session), form_(workshop.form), out_(workshop.session.disk, path) {}

  void run() {
    writeVertices();
    writeTexturePoints();
    writeFaces();
    out_.close();
  }

 private:
  void writeVertices() {
    for (RecordWalk walk(session_, kVertexFile, kVertexRecordLength); nextOf(walk);) {
      out_.line(text::trimmed(walk.record()));
      ++VertexBase_;
    }
    const VertexShift shift(form_);
    for (RecordWalk walk(session_, kAddedVertexFile, kVertexRecordLength); nextOf(walk);) {
      out_.line(shift.line(walk.record()));
    }
  }

  void writeTexturePoints() {
    for (RecordWalk walk(session_, kTextureFile, kTextureRecordLength); walk.next();) {
      out_.line(texturePointLine(walk.record()));
      ++TexBase_;
    }
    for (RecordWalk walk(session_, kAddedTextureFile, kTextureRecordLength); nextOf(walk);) {
      out_.line(text::trimmed(walk.record()));
    }
  }

  void writeFaces() {
    for (RecordWalk walk(session_, kFaceFile, kFaceRecordLength); walk.next();) {
      const std::string_view record = text::trimmed(walk.record());
      if (!record.empty()) out_.line(record);
    }
    for (RecordWalk walk(session_, kAddedFaceFile, kFaceRecordLength); walk.next();) {
      const std::string_view record = text::trimmed(walk.record());
      if (text::begins(record, "f")) {
        out_.line(raisedFace(record, VertexBase_, TexBase_));
      } else {
        out_.line(record);
      }
    }
  }

  /// Whether a further record is there that begins with "v".
  static bool nextOf(RecordWalk& walk) { return walk.next() && text::begins(walk.record(), "v"); }

  front::Session& session_;
  front::FormOBJ& form_;
  text::LineWriter out_;
  std::size_t VertexBase_ = 0;
  std::size_t TexBase_ = 0;
};

void merge(Workshop& workshop) {
  if (workshop.reading) return;
  front::Session& session = workshop.session;
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  const std::string result = session.opening.inProgramFolder(kResult);
  text::ignoringErrors([&] { session.disk.remove(scratch); });
  session.hourglass(true);
  front::runStoppable(session.front, [&] { MergePass(workshop, scratch).run(); });
  session.disk.replace(scratch, result);
  session.hourglass(false);
  session.opening.LabelOBJFileName.setCaption(result);
  workshop.setTitle(result);
  viewAnew(workshop);
}

}  // namespace

bool isMergedInView(front::Session& session) {
  return session.opening.LabelOBJFileName.caption() == session.opening.inProgramFolder(kResult);
}

void saveMerged(front::Session& session) {
  const std::string copy = session.opening.inProgramFolder(kCopy);
  session.hourglass(true);
  front::runStoppable(session.front, [&] {
    text::RewritePass pass(session.disk, session.opening.inProgramFolder(kResult), copy);
    pass.copyRest();
    pass.finish();
  });
  session.hourglass(false);
  const bool saved =
      saveResult(session, copy, {}, {"Save the merged mesh", front::kMeshFilter}).has_value();
  if (!saved) text::ignoringErrors([&] { session.disk.remove(copy); });
}

void wireMerge(Workshop& workshop) {
  workshop.form.PictureMerge.released.add([&workshop](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) merge(workshop);
  });
}

}  // namespace norvik::obj
