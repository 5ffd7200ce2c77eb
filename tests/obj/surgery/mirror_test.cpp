// What the window adds to the mirror.

#include "obj/surgery/mirror.h"

#include "front/form_obj.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace norvik::obj {
namespace {

/// The faces of a mesh that was mirrored on the axes of three answers.
std::string facesAfter(const std::string& answers) {
  const tests::TemporaryFolder folder;
  const auto host = text::makePosixHost();
  tests::ScriptedWorkbench bench(*host, folder.path());
  folder.write("a.obj", "v 1 1 1\r\nv 0 1 0\r\nv 0 0 1\r\ng a\r\nf 1/1 2/2 3/3\r\nfo 1 2 3\r\n");
  bench.run(
      "start\nload FormOBJ\nput LabelOBJFileName caption C:\\a.obj\nclick FormOBJ.LabelView\n");
  auto* form = dynamic_cast<front::FormOBJ*>(bench.session().findForm("FormOBJ"));
  form->TurnFacesRound = true;
  bench.run(answers + "choose C:\\b.obj\nclick FormOBJ.LabelMirror\n");
  const std::string mesh = folder.read("b.obj");
  return mesh.substr(mesh.find("g a\r\n") + 5);
}

TEST(Mirror, TurnsFacesRoundAcrossAnOddNumberOfAxes) {
  const std::string turned = "f 3/3 2/2 1/1\r\nfo 3 2 1\r\n";
  const std::string kept = "f 1/1 2/2 3/3\r\nfo 1 2 3\r\n";
  EXPECT_EQ(facesAfter("answer Yes\nanswer No\nanswer No\n"), turned);
  EXPECT_EQ(facesAfter("answer Yes\nanswer Yes\nanswer Yes\n"), turned);
  EXPECT_EQ(facesAfter("answer Yes\nanswer No\nanswer Yes\n"), kept);
  EXPECT_EQ(facesAfter("answer No\nanswer No\nanswer No\n"), kept);
}

TEST(MirroredLine, ChangesNothingButSigns) {
  EXPECT_EQ(mirroredLine("v 0 -0 1e-5", {.x = true, .y = false, .z = true}), "v -0 -0 -1e-5");
  EXPECT_EQ(mirroredLine("v", {.x = true, .y = false, .z = false}), "v -");
  EXPECT_EQ(mirroredLine("v", {}), "v");
  EXPECT_EQ(mirroredLine("", {.x = false, .y = true, .z = false}), "-");
}

}  // namespace
}  // namespace norvik::obj
