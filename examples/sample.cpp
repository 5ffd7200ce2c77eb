#include "sample.h"

#include "bmp_writer.h"
#include "cr2_writer.h"
#include "figure.h"
#include "obj_writer.h"
#include "pose_writer.h"
#include "prop_writer.h"
#include "scene_writer.h"
#include "text_file.h"

#include <functional>
#include <string>
#include <system_error>

namespace norvik::examples {

namespace {

namespace fs = std::filesystem;

void makeFolderFor(const fs::path& path) {
  std::error_code error;
  fs::create_directories(path.parent_path(), error);
  if (error) throw WriteError(path, error.value());
}

void writeText(const fs::path& path, const std::function<void(TextFile&)>& write) {
  makeFolderFor(path);
  TextFile file(path);
  write(file);
  file.finish();
}

void writePicture(const fs::path& path, const Weave& weave) {
  makeFolderFor(path);
  writeBmp(path, weave);
}

void writeGeometries(const fs::path& folder, const Figure& figure) {
  writeText(folder / "tilda.obj",
            [&](TextFile& file) { writeBodyObj(file, figure.parts, figure.density); });
  const auto write = [&](const std::string& name, const Prop& prop) {
    writeText(folder / name, [&](TextFile& file) { writePropObj(file, prop); });
  };
  write("tildaball.obj", ballProp());
  write("tildabuckle.obj", buckleProp());
  write("tildahair.obj", hairProp());
  write("tildastaff.obj", staffProp());
}

void writeTextures(const fs::path& folder) {
  writePicture(folder / "tilda.bmp", {40, 5, {236, 200, 172}, {226, 186, 158}});
  writePicture(folder / "tildasuit.bmp", {32, 4, {120, 150, 140}, {96, 128, 118}});
  writePicture(folder / "tildahair.bmp", {32, 8, {92, 62, 34}, {74, 48, 26}});
}

}  // namespace

void writeSample(const fs::path& folder) {
  const Figure first = makeFigure({.set = MorphSet::first});
  const Figure second = makeFigure({.set = MorphSet::second});
  // The trunk and the head alone, on the same mesh.
  const Figure bust = makeFigure({.set = MorphSet::second, .parts = 5, .morphs = 7});
  const fs::path runtime = folder / "Runtime";
  const fs::path libraries = runtime / "Libraries";

  writeGeometries(runtime / "Geometries" / "Tilda", first);
  writeTextures(runtime / "textures" / "Tilda");
  writeText(libraries / "Characters" / "Tilda" / "tilda.cr2",
            [&](TextFile& file) { writeCr2(file, first); });
  writeText(libraries / "Characters" / "Tilda" / "tilda2.cr2",
            [&](TextFile& file) { writeCr2(file, second); });
  writeText(libraries / "Pose" / "Tilda" / "wave.pz2",
            [&](TextFile& file) { writePose(file, first, wavePose()); });
  writeText(libraries / "Props" / "Tilda" / "ballandstaff.pp2", [](TextFile& file) {
    writePropFile(file, {ballProp(), staffProp()});
  });
  writeText(libraries / "Props" / "Tilda" / "box.pp2",
            [](TextFile& file) { writePropFile(file, {boxProp()}); });
  writeText(libraries / "Hair" / "Tilda" / "cap.hr2",
            [](TextFile& file) { writePropFile(file, {hairProp()}); });
  writeText(folder / "Scenes" / "bust.pz3", [&](TextFile& file) { writeScene(file, bust); });
}

}  // namespace norvik::examples
