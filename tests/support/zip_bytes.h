#pragma once
// Zip files as bytes, also such as no honest program makes.

#include <cstdint>
#include <string>
#include <vector>

namespace norvik::tests {

/// An entry, with what it says of itself; by default all of it is true.
struct ZipPart {
  std::string name;
  std::string bytes;           ///< as they lie in the zip
  unsigned mode = 0100644;     ///< kind and permissions
  unsigned method = 0;         ///< 8: the bytes are deflated
  unsigned flags = 0;          ///< 1: encrypted; 0x800: the name is UTF-8
  std::int64_t size = -1;      ///< unpacked; -1: that of the bytes
  std::int64_t checksum = -1;  ///< -1: that of the bytes
};

/// A zip file that holds these entries.
std::string zipBytes(const std::vector<ZipPart>& parts);

/// Bytes as a deflated stream that packs nothing.
std::string deflated(const std::string& bytes);

/// An entry of 1 + 258 `times` bytes "x", some 158 of them in one; it says any size of itself.
ZipPart packedPart(const std::string& name, std::size_t times, std::int64_t size);

/// An entry of deflated bytes that says any size of itself.
ZipPart deflatedPart(const std::string& name, const std::string& bytes, std::int64_t size);

}  // namespace norvik::tests
