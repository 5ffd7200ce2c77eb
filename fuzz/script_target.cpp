// Any script at all. The whole input is the script; drive C holds a small figure, f.cr2.

#include "runner.h"

namespace {

constexpr std::string_view kFigure =
    "{\r\nversion\r\n\t{\r\n\tnumber 4\r\n\t}\r\n"
    "figureResFile :Runtime:Geometries:Man:man.obj\r\n"
    "actor BODY:1\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n"
    "prop hat:1\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\tobjFileGeom 0 0 "
    ":Runtime:Geometries:hat.obj\r\n"
    "figureResFile :Runtime:Geometries:Man:man.obj\r\n"
    "actor BODY:1\r\n\t{\r\n\tname Body\r\n\t}\r\n"
    "actor head:1\r\n\t{\r\n\tname Head\r\n\tchannels\r\n\t\t{\r\n"
    "\t\ttargetGeom Smile\r\n\t\t\t{\r\n\t\t\t}\r\n\t\t}\r\n\t}\r\n"
    "figure\r\n\t{\r\n"
    "\tmaterial skin\r\n\t\t{\r\n\t\tKdColor 1 .5 .25 1\r\n\t\tKaColor 0 0 0 1\r\n"
    "\t\tKsColor 0 0 .1 1\r\n\t\ttextureMap \"man.bmp\"\r\n\t\tbumpMap "
    "NO_MAP\r\n\t\t}\r\n\t}\r\n}\r\n";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvik::fuzz;
  MemoryHost host;
  addFolders(host);
  host.addFile("/c/f.cr2", kFigure);
  host.addFile("/c/g.cr2", kFigure);
  runInMemory(host, std::string(data, data + size), "");
  return 0;
}
