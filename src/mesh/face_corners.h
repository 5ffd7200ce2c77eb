#pragma once
// The corners of a face record one by one, as the map tools read them.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::obj {

/// Hands out the texts between the blanks of a face record, empty ones left out.
///
///     for (FaceCorners corners(record); auto corner = corners.next();) use(*corner);
class FaceCorners {
 public:
  explicit FaceCorners(std::string_view record);
  std::optional<std::string_view> next();

 private:
  std::string_view rest_;
};

/// The text of an index: a negative one is its value plus 1, as the mesh's reader has it.
std::string indexText(std::string_view index);
/// What stands in front of a corner's first slash.
std::string_view vertexPart(std::string_view corner);
/// What stands between its first slash and the next; empty without any.
std::string_view texturePart(std::string_view corner);
/// The number of an index; 0 for one that names nothing.
std::size_t indexNumber(std::string_view index);

}  // namespace norvik::obj
