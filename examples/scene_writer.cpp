#include "scene_writer.h"

#include "actor_writer.h"
#include "channel_writer.h"
#include "cr2_writer.h"

namespace norvik::examples {

namespace {

void writeMovieInfo(TextFile& file) {
  file.line(0, "movieInfo");
  file.line(1, "{");
  file.line(1, "docWindow 0 0 400 400");
  file.line(1, "frameRate 30");
  file.line(1, "numbFrames 30");
  file.line(1, "loopFlag 1");
  file.line(1, "}");
}

void writeNothing(TextFile& file, const std::string& block) {
  file.line(0, block);
  file.line(1, "{");
  file.line(1, "}");
}

void writeSceneActor(TextFile& file, const ActorFrame& frame) {
  openActor(file, frame);
  for (const Channel& dial : propDials()) {
    openChannel(file, dial);
    closeChannel(file);
  }
  closeChannels(file, frame);
  closeActor(file);
}

void writeDocument(TextFile& file, const Figure& figure) {
  file.line(0, "doc");
  file.line(1, "{");
  file.line(1, "dimensions 400 400");
  file.line(1, "addActor UNIVERSE");
  file.line(1, "addActor GROUND");
  file.line(1, "addActor LIGHT1");
  file.line(1, "addActor MAIN_CAMERA");
  file.line(1, "addActor BODY:1");
  for (const BodyPart& part : figure.parts) file.line(1, "addActor ", actorName(part.name));
  file.line(1, "addFigure Figure 1");
  file.line(1, "}");
}

}  // namespace

void writeScene(TextFile& file, const Figure& figure) {
  openLibraryFile(file);
  writeMovieInfo(file);
  writeNothing(file, "actor UNIVERSE");
  writeNothing(file, "prop GROUND");
  writeNothing(file, "light LIGHT1");
  writeNothing(file, "camera MAIN_CAMERA");
  writeStorage(file, figure);
  writeSceneActor(file, {.name = "UNIVERSE", .title = "UNIVERSE", .parent = "NULL"});
  writeSceneActor(file,
                  {.kind = "prop", .name = "GROUND", .title = "GROUND", .parent = "UNIVERSE"});
  writeSceneActor(file,
                  {.kind = "light", .name = "LIGHT1", .title = "Light 1", .parent = "UNIVERSE"});
  writeSceneActor(file, {.kind = "camera",
                         .name = "MAIN_CAMERA",
                         .title = "Main Camera",
                         .parent = "UNIVERSE",
                         .origin = planPoint(0, 4000, 30000)});
  file.line(0, "figureResFile ", figure.geometry);
  writeActors(file, figure);
  writeFigureBlock(file, figure);
  writeDocument(file, figure);
  file.line(0, "}");
}

}  // namespace norvik::examples
