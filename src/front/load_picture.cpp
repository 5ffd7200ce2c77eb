#include "front/load_picture.h"

#include "text/byte_reader.h"

#include <string>

namespace norvik::front {

namespace {

/// Larger files are no pictures that fit in memory.
constexpr std::uint64_t kMostBytes = std::uint64_t{1} << 30U;

std::string wholeFile(const text::Disk& disk, std::string_view path) {
  if (disk.size(path) > kMostBytes) return {};
  std::string bytes;
  text::ByteReader file(disk, path);
  for (;;) {
    const std::string_view block = file.readBlocks(1);
    if (block.empty()) return bytes;
    bytes += block;
  }
}

}  // namespace

std::optional<graphics::Surface> loadPicture(Session& session, std::string_view path) {
  std::string bytes;
  text::ignoringErrors([&] { bytes = wholeFile(session.disk, path); });
  return bytes.empty() ? std::nullopt : session.front.decodePicture(bytes);
}

}  // namespace norvik::front
