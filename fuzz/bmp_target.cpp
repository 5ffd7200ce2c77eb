// Pictures out of any bytes: what is read fits into the bytes, and written again it is the same.

#include "graphics/bmp.h"
#include "graphics/bmp_reader.h"
#include "input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using norvik::fuzz::require;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const auto read = norvik::graphics::bmpSurface(bytes);
  if (!read) return 0;
  require(read->width() > 0 && read->height() > 0, "a picture of no size");
  require(read->pixels().size() * 3 <= bytes.size(), "more pixels than bytes");
  const auto again = norvik::graphics::bmpSurface(norvik::graphics::bmpBytes(*read));
  require(again.has_value(), "its own file is not known");
  require(again->width() == read->width(), "the width");
  require(again->rgbBytes() == read->rgbBytes(), "the pixels");
  return 0;
}
