#include "obj/scaler.h"

#include "front/stoppable_pass.h"
#include "mesh/obj_number.h"
#include "obj/scaled_vertex.h"
#include "text/columns.h"
#include "text/number_text.h"
#include "text/rewrite_pass.h"

#include <string>
#include <vector>

namespace norvik::obj {

namespace {

constexpr std::string_view kScratch = "\\obj.txt";
constexpr int kNeutral = 0;

/// Fills the scratch file with the mesh of a path, scaled. Lines are read as fields, so that one
/// with a comma comes out as two.
void scaleInto(front::Session& session, const std::string& path, const std::string& scratch,
               float amount) {
  text::RewritePass pass(session.disk, path, scratch);
  while (!pass.in().atEnd()) {
    const std::string_view line = pass.in().field();
    if (text::begins(line, "vn")) continue;
    if (isScaledLine(line)) {
      pass.out().line(scaledVertex(line, amount));
    } else {
      pass.out().line(line);
    }
  }
  pass.finish();
}

void putScaleAway(front::Opening& opening) {
  opening.SliderOBJScale.setValue(kNeutral);
  opening.SliderOBJScale.hide();
  opening.TextOBJScale.setText("0");
  opening.TextOBJScale.hide();
}

void tellFinished(front::Session& session, float amount) {
  session.hourglass(false);
  session.front.messageBox(text::numberText(amount) + " times original.", "Finished", front::kOk);
}

void scaleOne(front::Session& session, float amount) {
  const std::string path = session.opening.LabelOBJFileName.caption();
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  session.hourglass(true);
  front::runStoppable(session.front, [&] { scaleInto(session, path, scratch, amount); });
  putScaleAway(session.opening);
  session.disk.replace(scratch, path);
  tellFinished(session, amount);
}

/// The file itself, then the meshes of the current folder. The first of these is a bare name.
void listBatch(front::Session& session) {
  front::ListBox& list = session.opening.ListOBJBatch;
  list.clear();
  list.add(session.opening.LabelOBJFileName.caption());
  const std::string folder = session.disk.currentFolder() + "\\";
  const std::vector<std::string> names = session.disk.matching(folder + "*.obj");
  for (std::size_t i = 0; i < names.size(); ++i) list.add(i == 0 ? names[i] : folder + names[i]);
}

void ObjScalerBatch(front::Session& session, float amount) {
  listBatch(session);
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  session.hourglass(true);
  for (const std::string& path : session.opening.ListOBJBatch.items()) {
    scaleInto(session, path, scratch, amount);
    session.disk.replace(scratch, path);
  }
  putScaleAway(session.opening);
  tellFinished(session, amount);
}

void ObjScaler(front::Session& session) {
  front::Opening& opening = session.opening;
  if (text::holds(opening.TextOBJScale.text(), ".")) {
    session.front.messageBox("Whole numbers only!", "Error!", front::kOk);
    opening.TextOBJScale.setText("0");
    return;
  }
  const float amount = toSingle(text::value(opening.TextOBJScale.text()));
  if (amount == 0) {
    session.front.messageBox("No scaling amount entered!", "Error!", front::kOk);
    putScaleAway(opening);
  } else if (opening.CheckOBJBatch.value()) {
    ObjScalerBatch(session, amount);
  } else {
    scaleOne(session, amount);
  }
}

}  // namespace

void wireScaler(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.PictureScaleObj.released.add([&opening](front::Mouse mouse) {
    if (mouse.button != front::MouseButton::left) return;
    opening.SliderOBJScale.show();
    opening.TextOBJScale.show();
    opening.CheckOBJBatch.show();
  });
  opening.SliderOBJScale.changed.add(
      [&opening] { opening.TextOBJScale.setText(std::to_string(opening.SliderOBJScale.value())); });
  opening.TextOBJScale.key.add([&session](const std::string& key) {
    if (key == "Enter") ObjScaler(session);
  });
}

}  // namespace norvik::obj
