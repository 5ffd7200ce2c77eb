#pragma once
// The numbers of a `v` line.

#include "mesh/mesh.h"

#include <string>
#include <string_view>

namespace norvik::obj {

/// The three texts of a vertex.
struct VertexTexts {
  std::string_view x;
  std::string_view y;
  std::string_view z;
};

/// Cuts the coordinates out of a `v` line in the way that every mesh here has been shown: an x that
/// is not negative loses its first character ("12.5" is 2.5, "0.5" is .5), and "-.512" becomes
/// "-0.12". A coordinate that is not there is an empty text.
class VertexCutter {
 public:
  /// Good until the next line.
  VertexTexts operator()(std::string_view line);

 private:
  std::string shortened_;
};

/// The vertex of the texts; throws FileError overflow (6) for a number beyond single precision.
Position positionOf(const VertexTexts& texts);

}  // namespace norvik::obj
