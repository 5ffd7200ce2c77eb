#pragma once
// The lines of a second mesh as they stand behind those of the first.

#include "front/form_obj.h"
#include "mesh/decimal.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace norvik::obj {

/// Moves vertices as far as the front overlay was moved. A negative x moves the other way, so that
/// the halves of a mesh move apart; x is worked out in decimals and gets a zero in front, also
/// behind other digits ("12.5" becomes "012.5"), y is a single-precision number, and z stays.
class VertexShift {
 public:
  explicit VertexShift(front::FormOBJ& form);

  std::string line(std::string_view record) const;

 private:
  std::string shiftedX(std::string_view x) const;
  std::string shiftedY(std::string_view y) const;

  Decimal across_;
  double down_;
};

/// A face with its vertex indexes raised by one number and its texture indexes by another. A corner
/// without a texture index keeps its vertex alone, and a third index goes.
std::string raisedFace(std::string_view face, std::size_t byVertices, std::size_t byTexturePoints);

/// A texture point's record "u*v" as a line.
std::string texturePointLine(std::string_view record);

}  // namespace norvik::obj
