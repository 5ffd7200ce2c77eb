#include "actor_writer.h"

namespace norvik::examples {

void openActor(TextFile& file, const ActorFrame& frame) {
  file.line(0, frame.kind, " ", frame.name);
  file.line(1, "{");
  file.line(1, "name    ", frame.title);
  file.line(1, "on");
  file.line(1, "bend ", frame.bends ? "1" : "0");
  file.line(1, "dynamicsLock 1");
  file.line(1, "hidden 0");
  file.line(1, "addToMenu 1");
  file.line(1, "castsShadow 1");
  file.line(1, "includeInDepthCue 1");
  file.line(1, "parent ", frame.parent);
  file.line(1, "channels");
  file.line(2, "{");
}

void closeChannels(TextFile& file, const ActorFrame& frame) {
  file.line(2, "}");
  file.line(1, "endPoint ", frame.end);
  file.line(1, "origin ", frame.origin);
  file.line(1, "orientation 0 0 0");
  file.line(1, "displayOrigin ", frame.showsOrigin ? "1" : "0");
  file.line(1, "displayMode USEPARENT");
  file.line(1, "customMaterial ", frame.hasOwnMaterials ? "1" : "0");
}

void closeActor(TextFile& file) {
  file.line(1, "locked 0");
  file.line(1, "}");
}

void openLibraryFile(TextFile& file) {
  file.line(0, "{");
  file.line(0);
  file.line(0, "version");
  file.line(1, "{");
  file.line(1, "number 4.01");
  file.line(1, "}");
}

}  // namespace norvik::examples
