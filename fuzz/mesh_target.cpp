// The read of a mesh against its steps, one by one. Steering: READ SIZE|VIEW|COLOURS, the last two
// as the first letter of an option.

#include "desk.h"
#include "input.h"
#include "plain_mesh.h"
#include "workshop/reset.h"
#include "workshop/spin.h"
#include "workshop/view.h"

namespace {

// A sixtieth of the form's own size, in twips: small surfaces cost less.
constexpr float kScreenWidth = 256;
constexpr float kScreenHeight = 192;
constexpr double kView = 10;

using norvik::fuzz::Desk;
using norvik::fuzz::Input;
using norvik::fuzz::MeshReading;
using norvik::fuzz::require;
using norvik::fuzz::requireEqual;

void choose(norvik::front::FormOBJ& form, const std::string& view, const std::string& colours) {
  if (view == "s") form.OptionSideView.setValue(true);
  if (view == "t") form.OptionTopView.setValue(true);
  if (colours == "g") form.OptionColorGroups.setValue(true);
  if (colours == "m") form.OptionColorMaterials.setValue(true);
}

void compare(const Desk& desk, const norvik::obj::Workshop& workshop, const MeshReading& wanted) {
  const norvik::obj::Mesh& mesh = workshop.mesh;
  requireEqual(desk.host.bytesOf("/c/Norvik/FArray.txt"), wanted.faces, "FArray");
  requireEqual(desk.host.bytesOf("/c/Norvik/VTArray.txt"), wanted.texturePoints, "VTArray");
  requireEqual(desk.host.bytesOf("/c/Norvik/VArray.txt"), wanted.vertexRecords, "VArray");
  requireEqual(desk.host.bytesOf("/c/Norvik/Param.obj"), wanted.param, "Param.obj");
  requireEqual(workshop.form.ListGroups.items(), wanted.groups, "ListGroups");
  requireEqual(workshop.form.ListMaterials.items(), wanted.materials, "ListMaterials");
  require(mesh.FaceCount == wanted.faceCount, "FaceCount");
  require(mesh.RecordExtra == wanted.recordExtra, "RecordExtra");
  require(mesh.TexCount == wanted.texCount, "TexCount");
  require(mesh.HasUV == (wanted.texCount > 0), "HasUV");
  require(mesh.BiggestX == wanted.biggestX, "the largest x");
  require(mesh.SmallestX == wanted.smallestX, "the smallest x");
  require(mesh.BiggestY == wanted.biggestY, "the largest y");
  require(mesh.display.DisplayCount == wanted.displayed, "DisplayCount");
  require(mesh.display.vertices.size() == wanted.displayed, "the display list");
  require(mesh.vertices.size() == wanted.vertices.size(), "the vertices");
  for (std::size_t i = 0; i < mesh.vertices.size(); ++i) {
    const norvik::obj::Position& at = mesh.vertices[i];
    require(std::array<float, 3>{at.x, at.y, at.z} == wanted.vertices[i], "a vertex");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Input input(data, size);
  const auto pieces = input.pieces(3);
  Desk desk("obj", input.text);
  desk.host.limitReads(norvik::fuzz::numberIn(pieces[0], 1, 4096));
  desk.front.setScreen({kScreenWidth, kScreenHeight});
  norvik::front::FormOBJ form;
  norvik::obj::Workshop workshop(desk.session, form);
  norvik::obj::wireView(workshop);
  norvik::obj::wireSpin(workshop);
  desk.session.load(form);
  choose(form, pieces[1], pieces[2]);
  desk.opening.LabelOBJFileName.setCaption(desk.path);

  const MeshReading wanted = norvik::fuzz::plainMesh(input.text, kView);
  form.ReadAgain = true;
  require(Desk::run([&] { norvik::obj::View(workshop); }) == wanted.error, "the error");
  compare(desk, workshop, wanted);
  require(desk.front.boxes().empty() == !wanted.toldAsMorph, "the box of a morph");
  requireEqual(desk.host.bytesOf(desk.hostName), input.text, "the mesh");

  // A refresh meets the same end, and leaves the store alone.
  const int refreshed = Desk::run([&] { norvik::obj::RefreshOBJ(workshop); });
  const int end = wanted.toTheEnd ? 0 : wanted.error;
  require(wanted.error == 0 || wanted.texCount > 0 || !wanted.param.empty() || refreshed == end,
          "the error of a refresh");
  requireEqual(desk.host.bytesOf("/c/Norvik/FArray.txt"), wanted.faces, "FArray after a refresh");
  return 0;
}
