#include "graphics/bmp_file.h"

#include "graphics/bmp.h"
#include "text/line_writer.h"

namespace norvik::graphics {

void saveBmp(text::Disk& disk, const Surface& surface, const std::string& path,
             const std::string& scratch) {
  try {
    text::LineWriter file(disk, scratch);
    file.bytes(bmpBytes(surface));
    file.close();
    disk.replace(scratch, path);
  } catch (const text::FileError&) {
    text::ignoringErrors([&] { disk.remove(scratch); });
    throw;
  }
}

}  // namespace norvik::graphics
