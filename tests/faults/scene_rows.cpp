// Alternate geometries and scene conversions.

#include "faults/rows.h"

namespace norvik::tests {

namespace {

const std::string kReference = "figureResFile :Runtime:Geometries:doll:doll.obj\r\n";
const std::string kHead = "{\r\nversion\r\n\t{\r\n\tnumber 4\r\n\t}\r\n" + kReference +
                          "actor BODY:1\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n" +
                          "actor head:1\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n";
const std::string kSettings =
    "doc\r\n\t{\r\n\tbgMovie x\r\n\t}\r\nactor UNIVERSE\r\n\t{\r\n\t}\r\n";
const std::string kCamera = "camera MAIN_CAMERA\r\n\t{\r\n\tname old\r\n\t}\r\n";
const std::string kNewCamera = "camera MAIN_CAMERA\r\n\t{\r\n\tname mine\r\n\t}\r\n";
const std::string kActorTop =
    kReference +
    "actor BODY:1\r\n\t{\r\n\tname Body\r\n\t}\r\nactor head:1\r\n\t{\r\n\tname Head\r\n"
    "\tparent BODY:1\r\n";
const std::string kChannelsTop = "\tchannels\r\n\t\t{\r\n";

std::string deltas() {
  return "\t\ttargetGeom Smile\r\n\t\t\t{\r\n" + manyLines("\t\t\t\td") + "\t\t\t}\r\n";
}

const std::string kTail =
    "\t\t}\r\n\t}\r\nfigure\r\n\t{\r\n\tmaterial skin\r\n\t\t{\r\n\t\tKdColor 1 1 1 1\r\n"
    "\t\tKaColor 0 0 0 1\r\n\t\tKsColor 0 0 0 1\r\n\t\ttextureMap NO_MAP\r\n\t\t}\r\n"
    "\tdisplayMode USEPARENT\r\n\t}\r\n}\r\n";

std::string figure() {
  return kHead + kActorTop + kChannelsTop + deltas() + kTail;
}

std::string scene(const std::string& cameras) {
  return kHead + kSettings + cameras + kActorTop + kChannelsTop + deltas() + kTail;
}

std::string open(const std::string& file) {
  return "choose C:\\figures\\" + file + "\nclick MenuFileOpen\n";
}

ToolUnderFaults alternateGeometry() {
  const std::string geometry =
      "\talternateGeom head_fist\r\n\t\t{\r\n\t\tname head_fist\r\n"
      "\t\tobjFile Runtime\\Geometries\\fist.obj\r\n\t\t}\r\n";
  const std::string dial =
      "\t\tgeomChan headGeom\r\n\t\t\t{\r\n\t\t\tuniqueInterp\r\n\t\t\tname head type\r\n"
      "\t\t\tinitValue 0\r\n\t\t\thidden 0\r\n\t\t\tforceLimits 4\r\n\t\t\tmin 0\r\n\t\t\tmax 1\r\n"
      "\t\t\ttrackingScale 0.045\r\n\t\t\tkeys\r\n\t\t\t\t{\r\n\t\t\t\tstatic 1\r\n"
      "\t\t\t\tk  0  0\r\n\t\t\t\t}\r\n\t\t\tinterpStyleLocked 1\r\n\t\t\tstaticValue 0\r\n"
      "\t\t\t}\r\n";
  return {"AlternateGeometry",
          {{"figures/fig.cr2", figure()},
           {"Norvik/AltGeom.cr2", "an older figure\r\n"},
           {"Norvik/AltGeom.pp2", "an older prop\r\n"}},
          open("fig.cr2") + "click menuGeomSwitch\n",
          "choose C:\\Poser\\Runtime\\Geometries\\fist.obj\nitem ListAltGeomActors head:1\n",
          "Norvik/AltGeom.cr2",
          kHead + kActorTop + geometry + kChannelsTop + deltas() + dial + kTail,
          {"Norvik/AltGeom.cr2", "Norvik/AltGeom.pp2"}};
}

ToolUnderFaults geometryOnResult() {
  ToolUnderFaults tool = alternateGeometry();
  tool.name = "AlternateGeometryOnItsResult";
  tool.files = {{"Norvik/AltGeom.cr2", figure()}, {"Norvik/AltGeom.pp2", "an older prop\r\n"}};
  tool.opening = "choose C:\\Norvik\\AltGeom.cr2\nclick MenuFileOpen\nclick menuGeomSwitch\n";
  tool.deleted = {"Norvik/AltGeom.pp2"};
  return tool;
}

ToolUnderFaults sceneToFigure() {
  return {"SceneToFigure",
          {{"figures/a.pz3", scene(kCamera)}, {"figures/b.cr2", "an older figure\r\n"}},
          open("a.pz3"),
          "choose C:\\figures\\b.cr2\nclick MenuPZ3Cr2Conv\n",
          "figures/b.cr2",
          figure(),
          {}};
}

ToolUnderFaults restoredCameras() {
  return {"RestoredCameras",
          {{"figures/a.pz3", scene(kCamera)}, {"figures/a.cam", kNewCamera}},
          open("a.pz3"),
          "click MenuP3P4Cam\n",
          "figures/a.pz3",
          scene(kNewCamera),
          {}};
}

ToolUnderFaults savedCameras() {
  return {"SavedCameras",
          {{"figures/a.pz3", scene(kCamera)}},
          open("a.pz3"),
          "click MenuP3P4Cam\n",
          "figures/a.cam",
          kCamera,
          {}};
}

ToolUnderFaults filmBackground() {
  std::string film = scene(kCamera);
  film.replace(film.find("number 4"), 8, "number 3.01");
  film.erase(film.find("bgMovie x\r\n") + 11);
  return {"FilmBackground",
          {{"figures/a.pz3", scene(kCamera)}, {"Norvik/Avi.txt", "an older result\r\n"}},
          open("a.pz3"),
          "choose C:\\figures\\a.pz3\nclick MenuPZ3AVI\n",
          "figures/a-AVI.pp2",
          film,
          {}};
}

ToolUnderFaults materialLibrary() {
  return {"MaterialLibrary",
          {{"figures/a.pz3", scene(kCamera)}, {"figures/a.mtl", "an older library\r\n"}},
          open("a.pz3"),
          "click MenuMakeMTL\n",
          "figures/a.mtl",
          "newmtl skin\r\nKd 1 1 1 1\r\nKa 0 0 0 1\r\nKs 0 0 0 1\r\n",
          {}};
}

}  // namespace

FaultRows sceneRows() {
  return {
      {"AlternateGeometry", alternateGeometry}, {"AlternateGeometryOnItsResult", geometryOnResult},
      {"SceneToFigure", sceneToFigure},         {"RestoredCameras", restoredCameras},
      {"SavedCameras", savedCameras},           {"FilmBackground", filmBackground},
      {"MaterialLibrary", materialLibrary}};
}

}  // namespace norvik::tests
