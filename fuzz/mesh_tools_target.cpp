// The tools that work on a mesh, one after the other. Steering: READ SIZE|TOOLS, a letter each: u
// for the template, m for made coordinates, s for the second template, g and k for renamed and
// saved groups, c and x for the mesh condensed and scaled.

#include "runner.h"

#include <map>

namespace {

using norvik::fuzz::Input;
using norvik::fuzz::MemoryHost;
using norvik::fuzz::requireEqual;

constexpr const char* kStart =
    "setting Startup PLoc C:\\Poser\\\nstart\nchoose C:\\f.obj\nclick MenuFileOpen\n"
    "click PictureOBJView\nanswer Cancel\nclick FormOBJ.LabelView\n";

const std::map<char, std::string>& tools() {
  static const std::map<char, std::string> all{
      {'u',
       "click FormOBJ.LabelUVMap\nclick FormOBJ.LabelSaveMap\ntype FormOBJ.TextMapSize 7\n"
       "key FormOBJ.TextMapSize Enter\n"},
      {'m', "click FormOBJ.LabelMakeUV\n"},
      {'s',
       "click FormOBJ.LabelSecMap\ntype FormOBJ.TextMapSizeSec 3\n"
       "key FormOBJ.TextMapSizeSec Enter\n"},
      {'g',
       "click FormOBJ.CommandListGroups\nclick FormOBJ.LabelRichRename\n"
       "select FormOBJ.ListGroups 0\ntype FormOBJ.TextGrpRename new\n"
       "key FormOBJ.TextGrpRename Enter\nclick FormOBJ.CommandListGroups\n"},
      {'k',
       "click FormOBJ.CommandListMats\nclick FormOBJ.LabelRichRename\n"
       "click FormOBJ.CheckSaveMaterials\ntick FormOBJ.ListMaterialsSave 0 on\n"
       "choose C:\\part.obj\ntick FormOBJ.ListMaterialsSave 1 on\n"
       "click FormOBJ.CommandListMats\n"},
      {'c', "click PictureMash\nclick OptionMashOBJ\nclick PictureMash\n"},
      {'x', "click PictureScaleObj\ntype TextOBJScale -3\nkey TextOBJScale Enter\n"}};
  return all;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Input input(data, size);
  const auto pieces = input.pieces(2);
  MemoryHost host;
  norvik::fuzz::addFolders(host);
  host.addFile("/c/f.obj", input.text);
  // The same lines stand for what an earlier version left.
  host.addFile("/c/Norvik/groupface.txt", input.text);
  host.addFile("/c/Norvik/groupvertex.txt", input.text);
  host.limitReads(norvik::fuzz::numberIn(pieces[0], 1, 4096));
  std::string script = kStart;
  bool changes = false;
  for (const char letter : pieces[1]) {
    const auto tool = tools().find(letter);
    if (tool != tools().end()) script += tool->second;
    changes = changes || letter == 'c' || letter == 'x';
  }
  script += "cancel\nclose FormOBJ\n";
  norvik::fuzz::runInMemory(host, script, "");
  if (!changes) requireEqual(host.bytesOf("/c/f.obj"), input.text, "the mesh");
  return 0;
}
