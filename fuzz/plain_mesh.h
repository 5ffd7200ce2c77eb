#pragma once
// The read of a mesh in its plainest form: step by step over lines that are all there.

#include <array>
#include <string>
#include <vector>

namespace norvik::fuzz {

/// What a read leaves.
struct MeshReading {
  int error = 0;
  std::string faces;          ///< "\FArray.txt"
  std::string texturePoints;  ///< "\VTArray.txt"
  std::string vertexRecords;  ///< "\VArray.txt"
  std::string param;          ///< "\Param.obj"; empty when none was written
  std::vector<std::string> groups;
  std::vector<std::string> materials;
  std::vector<std::array<float, 3>> vertices;
  float faceCount = 0;
  float recordExtra = 0;
  long texCount = 0;
  float biggestX = 0;
  float smallestX = 0;
  float biggestY = 0;
  std::size_t displayed = 0;  ///< corners in the display list
  bool toTheEnd = false;      ///< every line was read, whatever came then
  bool toldAsMorph = false;
};

/// The reading of a text, with square views of so many pixels.
MeshReading plainMesh(const std::string& text, double view);

}  // namespace norvik::fuzz
