#pragma once

#include "text_file.h"
#include "units.h"

#include <string>

namespace norvik::examples {

// What the head and the tail of an actor's or a prop's block say.
struct ActorFrame {
  std::string kind = "actor";
  std::string name{};
  std::string title{};
  std::string parent{};
  Point origin{};
  Point end{};
  bool bends = true;
  bool showsOrigin = false;
  bool hasOwnMaterials = false;
};

// Writes the block up to the brace that opens its channels.
void openActor(TextFile& file, const ActorFrame& frame);
// Closes the channels and writes the lines up to the materials.
void closeChannels(TextFile& file, const ActorFrame& frame);
void closeActor(TextFile& file);

// The lines that begin every library file: the file's own brace and the version.
void openLibraryFile(TextFile& file);

}  // namespace norvik::examples
