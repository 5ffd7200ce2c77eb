// The surgery on meshes during which the host fails.

#include "support/tool_faults.h"

#include <gtest/gtest.h>

#include <tuple>

namespace norvik::tests {

namespace {

const std::string kVertices = "v 0.5 0.25 0.125\r\nv -0.25 0.5 0.125\r\nv -0.05 0.25 0.1\r\n";
const std::string kMirrored = "v -0.5 0.25 0.125\r\nv 0.25 0.5 0.125\r\nv 0.05 0.25 0.1\r\n";
const std::string kFaces = "g hip\r\nf 1 2 3 1\r\n";
const std::string kMesh = kVertices + kFaces;

const std::string kOpen =
    "choose C:\\a.obj\nclick MenuFileOpen\nclick PictureOBJView\n"
    "click FormOBJ.OptionColorGroups\nclick FormOBJ.LabelView\n";

ToolUnderFaults mirroring(const std::string& name, const std::string& target) {
  ToolUnderFaults tool{
      name,
      {{"a.obj", kMesh}, {"Norvik/Mirror.txt", "older\r\n"}, {"Norvik/MirrorOBJ.txt", "older\r\n"}},
      kOpen + "answer Yes\nanswer No\nanswer No\n",
      "choose C:\\" + target + "\nclick FormOBJ.LabelMirror\n",
      target,
      kMirrored + kFaces,
      {}};
  return tool;
}

/// The box lies over the face in the front view and its first corner, at pixel 600, 450.
const std::string kBox =
    "press FormOBJ.PictureStore 100 200\nrelease FormOBJ.PictureStore 650 500\n";

ToolUnderFaults cutting(const std::string& name, const std::string& target) {
  return {name,
          {{"a.obj", kMesh}, {"Norvik/Lop.txt", "older\r\n"}},
          kOpen + "click FormOBJ.PictureLop\n",
          "answer Yes\nchoose C:\\" + target + "\nanswer Yes\n" + kBox,
          target,
          kVertices + "g hip\r\n",
          {}};
}

ToolUnderFaults merging(const std::string& name, bool again) {
  ToolUnderFaults tool{name,
                       {{"a.obj", kMesh}, {"b.obj", kMesh}},
                       kOpen + "choose C:\\b.obj\nclick FormOBJ.PictureAddOBJ\n",
                       "click FormOBJ.PictureMerge\n",
                       "Norvik/MergeTest.obj",
                       kVertices + "v 0.5 .25 0.125\r\nv -0.25 .5 0.125\r\nv -0.05 .25 0.1\r\n" +
                           kFaces + "g hip\r\nf 4 5 6 4\r\n",
                       {}};
  if (again) tool.files["Norvik/MergeTest.obj"] = "an older merge\r\n";
  return tool;
}

const std::string kFigure =
    "{\r\nprop hat\r\n{\r\ngeomCustom\r\n{\r\nv 1 2 3\r\nf 1 1 1\r\n}\r\n}\r\n}\r\n";

ToolUnderFaults exporting(const std::string& name, bool there) {
  ToolUnderFaults tool{name,
                       {{"a.pp2", kFigure}},
                       "put LabelFileNameForEditor caption C:\\a.pp2\nput ListOBJExtract items "
                       "hat|DONE\n",
                       "answer OK\nselect ListOBJExtract 0 1\n",
                       "hat.obj",
                       "v 1 2 3\r\nf 1 1 1\r\n",
                       {}};
  if (there) tool.files["hat.obj"] = "an older hat\r\n";
  return tool;
}

using Case = std::tuple<ToolUnderFaults, HostFault>;

class SurgeryFaultsTest : public testing::TestWithParam<Case> {};

TEST_P(SurgeryFaultsTest, TargetIsOldOrNew) {
  const auto& [tool, fault] = GetParam();
  expectOldOrNew(tool, fault);
}

std::string caseName(const testing::TestParamInfo<Case>& info) {
  return std::get<0>(info.param).name + std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(
    Tools, SurgeryFaultsTest,
    testing::Combine(testing::Values(mirroring("MirrorInPlace", "a.obj"),
                                     mirroring("MirrorOfACopy", "b.obj"),
                                     cutting("CutInPlace", "a.obj"), cutting("CutOfACopy", "b.obj"),
                                     merging("Merge", false), merging("MergeAgain", true),
                                     exporting("Export", false), exporting("ExportAgain", true)),
                     testing::ValuesIn(allHostFaults())),
    caseName);

}  // namespace

}  // namespace norvik::tests
