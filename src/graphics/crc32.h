#pragma once
// The check sum that pictures are told apart by.

#include <cstdint>
#include <string_view>

namespace norvik::graphics {

/// CRC-32 as zip files and PNG pictures have it: reflected polynomial 0xEDB88320, begun and ended
/// with all bits turned over.
std::uint32_t crc32(std::string_view bytes);

}  // namespace norvik::graphics
