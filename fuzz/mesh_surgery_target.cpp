// The surgery on a mesh: the text is the mesh in view and the one that is added, it is mirrored
// twice, merged with itself, and cut. Steering: READ SIZE|VIEW|LEFT|TOP|RIGHT|BOTTOM, the view as
// the first letter of its option, the rest the corners of the box.

#include "desk.h"
#include "input.h"
#include "obj/surgery/lop_box.h"
#include "obj/surgery/merge.h"
#include "obj/surgery/mirror.h"
#include "obj/surgery/overlays.h"
#include "obj/surgery/second_mesh.h"
#include "text/columns.h"
#include "workshop/reset.h"
#include "workshop/spin.h"
#include "workshop/view.h"

#include <algorithm>

namespace {

// A sixtieth of the form's own size, in twips: small surfaces cost less.
constexpr float kScreenWidth = 256;
constexpr float kScreenHeight = 192;

using norvik::fuzz::Desk;
using norvik::fuzz::Input;
using norvik::fuzz::require;
using norvik::fuzz::requireEqual;

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find("\r\n", at), text.size());
    lines.push_back(text.substr(at, end - at));
    at = end + 2;
  }
  return lines;
}

std::size_t countOf(const std::vector<std::string>& lines, std::string_view start) {
  return static_cast<std::size_t>(std::count_if(lines.begin(), lines.end(), [&](const auto& line) {
    return std::string_view(line).starts_with(start);
  }));
}

/// A sign that is changed twice is what it was.
void mirrorRecords(const std::string& records) {
  constexpr std::size_t kRecord = 50;
  for (std::size_t at = 0; at + kRecord <= records.size(); at += kRecord) {
    const std::string record{norvik::text::trimmed(std::string_view(records).substr(at, kRecord))};
    const auto once = norvik::obj::mirroredLine(record, {.x = true, .y = false, .z = true});
    require(once.starts_with("v "), "a mirrored vertex");
    requireEqual(norvik::obj::mirroredLine(record, {}), record, "a vertex that is not mirrored");
  }
}

/// The text as a second mesh, and both as one.
void addAndMerge(Desk& desk, norvik::obj::Workshop& workshop) {
  const std::size_t first = workshop.mesh.vertices.size();
  norvik::obj::Overlays overlays(workshop);
  overlays.begin();
  const int added =
      Desk::run([&] { norvik::obj::SecondMeshPass(workshop, overlays).run(desk.path); });
  require(added == 0 || added == 6 || added == 9, "the error of an added mesh");
  if (added != 0) return;
  overlays.display();
  const int merged = Desk::run([&] { workshop.form.PictureMerge.released.raise({}); });
  require(merged == 0 || merged == 6 || merged == 9, "the error of a merge");
  const auto lines = linesOf(desk.host.bytesOf("/c/Norvik/MergeTest.obj"));
  require(lines.empty() || countOf(lines, "v ") >= first, "the vertices of the merged mesh");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Input input(data, size);
  const auto pieces = input.pieces(6);
  Desk desk("obj", input.text);
  desk.host.limitReads(norvik::fuzz::numberIn(pieces[0], 1, 4096));
  desk.front.setScreen({kScreenWidth, kScreenHeight});
  desk.front.answerWith(norvik::front::Answer::yes);
  norvik::front::FormOBJ form;
  norvik::obj::Workshop workshop(desk.session, form);
  norvik::obj::wireView(workshop);
  norvik::obj::wireSpin(workshop);
  norvik::obj::wireMirror(workshop);
  norvik::obj::wireMerge(workshop);
  norvik::obj::wireLopBox(workshop);
  desk.session.load(form);
  form.OptionColorGroups.setValue(true);
  desk.opening.LabelOBJFileName.setCaption(desk.path);
  form.ReadAgain = true;
  if (Desk::run([&] { norvik::obj::View(workshop); }) != 0) return 0;
  mirrorRecords(desk.host.bytesOf("/c/Norvik/VArray.txt"));

  // Cut first: the merge changes the mesh in view.
  const auto corner = [&](std::size_t piece) {
    return static_cast<int>(norvik::fuzz::numberIn(pieces[piece], 0, 99));
  };
  norvik::front::PictureBox& picture =
      pieces[1] == "s" ? form.PictureStore2
                       : (pieces[1] == "t" ? form.PictureStore3 : form.PictureStore);
  form.PictureLop.released.raise({});
  picture.pressed.raise({norvik::front::MouseButton::left, corner(2), corner(3)});
  const int cut = Desk::run([&] {
    picture.released.raise({norvik::front::MouseButton::left, corner(4), corner(5)});
  });
  require(cut == 0 || cut == 6 || cut == 9, "the error of a cut");
  const auto left = linesOf(desk.host.bytesOf("/c/Norvik/Lop.txt"));
  require(countOf(left, "f ") <= static_cast<std::size_t>(workshop.mesh.FaceCount), "the faces");
  requireEqual(desk.host.bytesOf(desk.hostName), input.text, "the mesh");

  addAndMerge(desk, workshop);
  Desk::run([&] { form.LabelMirror.clicked.raise(); });
  return 0;
}
