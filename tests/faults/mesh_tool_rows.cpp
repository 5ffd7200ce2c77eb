// The tools that scale, rename, part and picture a mesh.

#include "faults/rows.h"

namespace norvik::tests {

namespace {

const std::string kMesh =
    "# a mesh\r\nv 0 .5 0\r\nv 1 .5 0\r\nv 1 1 0\r\nvt 0 0\r\ng head\r\nf 1/1 2/1 3/1\r\n"
    "g neck\r\nf 1/1 2/1 3/1\r\n";
const std::string kRenamed =
    "# a mesh\r\nv 0 .5 0\r\nv 1 .5 0\r\nv 1 1 0\r\nvt 0 0\r\ng skull\r\nf 1/1 2/1 3/1\r\n"
    "g neck\r\nf 1/1 2/1 3/1\r\n";
const std::string kPart =
    "v 0 .5 0\r\nv 1 .5 0\r\nv 1 1 0\r\nvt 0 0\r\ng neck\r\nf 1/1 2/1 3/1\r\n";
const std::string kScaled =
    "# a mesh\r\nv 0.000 10000000 0.000000\r\nv  20000000 10000000 0.000000\r\n"
    "v  20000000 20000000 0.000000\r\nvt 0 0\r\ng head\r\nf 1/1 2/1 3/1\r\ng neck\r\n"
    "f 1/1 2/1 3/1\r\n";
const std::string kOpen = "choose C:\\work\\a.obj\nclick MenuFileOpen\n";
const std::string kView = kOpen + "click PictureOBJView\nclick FormOBJ.LabelView\n";
const std::string kRename =
    "click FormOBJ.CommandListGroups\nclick FormOBJ.LabelRichRename\n"
    "item FormOBJ.ListGroups head\ntype FormOBJ.TextGrpRename skull\n"
    "key FormOBJ.TextGrpRename Enter\nclick FormOBJ.CommandListGroups\n";
const std::string kTick =
    "click FormOBJ.CommandListGroups\nclick FormOBJ.LabelRichRename\n"
    "click FormOBJ.CheckSaveGroups\ntick FormOBJ.ListGroupsSave 1 on\n";

/// A picture of two by two white pixels.
std::string whitePicture() {
  std::string bytes("BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x02\0\0\0\x02\0\0\0\x01\0\x18\0", 30);
  bytes += std::string("\0\0\0\0\x10\0\0\0", 8) + std::string(16, '\0');
  for (int row = 0; row < 2; ++row) bytes += std::string(6, '\xFF') + std::string(2, '\0');
  return bytes;
}

std::vector<ToolUnderFaults> tools() {
  return {
      {"MeshScale",
       {{"work/a.obj", kMesh}, {"Norvik/obj.txt", "older"}},
       kOpen + "click PictureScaleObj\ntype TextOBJScale 2\n",
       "key TextOBJScale Enter\n",
       "work/a.obj",
       kScaled,
       {}},
      {"MeshRename",
       {{"work/a.obj", kMesh}, {"Norvik/newobj.txt", "older"}},
       kView + kRename,
       "choose C:\\work\\a.obj\nclose FormOBJ\n",
       "work/a.obj",
       kRenamed,
       {}},
      {"MeshRenameAsAnother",
       {{"work/a.obj", kMesh}, {"work/b.obj", "another\r\n"}},
       kView + kRename,
       "choose C:\\work\\b.obj\nclose FormOBJ\n",
       "work/b.obj",
       kRenamed,
       {}},
      {"MeshPart",
       {{"work/a.obj", kMesh}},
       kView + kTick,
       "choose C:\\work\\part.obj\ntick FormOBJ.ListGroupsSave 2 on\n",
       "work/part.obj",
       kPart,
       {}},
      {"MeshTemplate",
       {{"work/a.obj", kMesh}, {"work/a.bmp", "another picture"}},
       kView + "click FormOBJ.LabelUVMap\nclick FormOBJ.LabelSaveMap\ntype FormOBJ.TextMapSize 2\n",
       "key FormOBJ.TextMapSize Enter\n",
       "work/a.bmp",
       whitePicture(),
       {}},
  };
}

}  // namespace

FaultRows meshToolRows() {
  FaultRows rows;
  for (const ToolUnderFaults& tool : tools()) {
    rows.push_back({tool.name, [tool] { return tool; }});
  }
  return rows;
}

}  // namespace norvik::tests
