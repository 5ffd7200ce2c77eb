#pragma once
// LabelSaveMap, TextMapSize and TextMapSizeSec: a template as a picture file.

#include "workshop/workshop.h"

#include <optional>
#include <string>

namespace norvik::obj {

/// A template as it will be saved.
struct MapFile {
  std::string path;
  /// Of the same template with a transparent ground, which a window offers beside it.
  std::string transparent;
  int pixels = 0;  ///< its width and height
};

/// What the return key would save with the text that stands in TextMapSize or TextMapSizeSec;
/// nothing for a size that no picture has.
std::optional<MapFile> mapFile(const front::Opening& opening, const front::TextBox& size);

/// The template that is saved with the size in TextMapSize or TextMapSizeSec.
front::PictureBox& mapSheet(front::FormOBJ& form, const front::TextBox& size);

/// A click on LabelSaveMap shows TextMapSize; the return key there saves the template of
/// PictureUVMap, stretched to that many pixels each way, beside the mesh: the mesh's path up to its
/// first dot, and "bmp". TextMapSizeSec does the same with PictureSecMap and ".bmp". A file that is
/// there is replaced. A size that no picture has is error 480.
void wireSaveMap(Workshop& workshop);

}  // namespace norvik::obj
