// Mirrored, cut and merged meshes, and geometry out of a figure.

#include "faults/rows.h"

namespace norvik::tests {

namespace {

const std::string kVertices = "v 0.5 0.25 0.125\r\nv -0.25 0.5 0.125\r\nv -0.05 0.25 0.1\r\n";
const std::string kFaces = "g hip\r\nf 1 2 3 1\r\n";
const std::string kOpen =
    "choose C:\\a.obj\nclick MenuFileOpen\nclick PictureOBJView\n"
    "click FormOBJ.OptionColorGroups\nclick FormOBJ.LabelView\n";

ToolUnderFaults mirror() {
  return {.name = "MeshMirror",
          .files = {{"a.obj", kVertices + kFaces}, {"Norvik/MirrorOBJ.txt", "older\r\n"}},
          .opening = kOpen + "answer Yes\nanswer No\nanswer No\n",
          .running = "choose C:\\a.obj\nclick FormOBJ.LabelMirror\n",
          .target = "a.obj",
          .result = "v -0.5 0.25 0.125\r\nv 0.25 0.5 0.125\r\nv 0.05 0.25 0.1\r\n" + kFaces,
          .deleted = {},
          .rescued = "Norvik/MirrorOBJ.txt"};
}

/// The first corner is at pixel 600, 450 of the front view.
ToolUnderFaults cut() {
  return {.name = "MeshCut",
          .files = {{"a.obj", kVertices + kFaces}, {"Norvik/Lop.txt", "older\r\n"}},
          .opening = kOpen + "click FormOBJ.PictureLop\n",
          .running =
              "answer Yes\nchoose C:\\a.obj\nanswer Yes\n"
              "press FormOBJ.PictureStore 100 200\nrelease FormOBJ.PictureStore 650 500\n",
          .target = "a.obj",
          .result = kVertices + "g hip\r\n",
          .deleted = {},
          .rescued = "Norvik/Lop.txt"};
}

ToolUnderFaults merge() {
  return {.name = "MeshMerge",
          .files = {{"a.obj", kVertices + kFaces},
                    {"b.obj", kVertices + kFaces},
                    {"Norvik/MergeTest.obj", "an older merge\r\n"}},
          .opening = kOpen + "choose C:\\b.obj\nclick FormOBJ.PictureAddOBJ\n",
          .running = "click FormOBJ.PictureMerge\n",
          .target = "Norvik/MergeTest.obj",
          .result = kVertices + "v 0.5 .25 0.125\r\nv -0.25 .5 0.125\r\nv -0.05 .25 0.1\r\n" +
                    kFaces + "g hip\r\nf 4 5 6 4\r\n",
          .deleted = {},
          .rescued = "Norvik/Merge.txt"};
}

ToolUnderFaults exportGeometry() {
  const std::string geometry = "v 1 2 3\r\nf 1 1 1\r\n";
  return {.name = "GeometryExport",
          .files = {{"a.cr2",
                     "{\r\nfigureResFile :Runtime:Geometries:doll:doll.obj\r\nactor BODY:1\r\n"
                     "{\r\n}\r\nprop hat\r\n{\r\ngeomCustom\r\n{\r\n" +
                         geometry + "}\r\n}\r\n}\r\n"},
                    {"hat.obj", "an older hat\r\n"}},
          .opening =
              "choose C:\\a.cr2\nclick MenuFileOpen\nchdir C:\\\nanswer Yes\n"
              "click PictureOBJExtract\nanswer OK\n",
          .running = "select ListOBJExtract 0 1\n",
          .target = "hat.obj",
          .result = geometry,
          .deleted = {}};
}

}  // namespace

FaultRows meshRows() {
  return {{"MeshMirror", mirror},
          {"MeshCut", cut},
          {"MeshMerge", merge},
          {"GeometryExport", exportGeometry}};
}

}  // namespace norvik::tests
