#pragma once
// What the 3D view is made of.

namespace norvik::graphics {

/// A corner as a 3D device takes it: place, normal, place on the texture.
struct Vertex {
  float x = 0;
  float y = 0;
  float z = 0;
  float nx = 0;
  float ny = 0;
  float nz = 0;
  float tu = 0;
  float tv = 0;
};

}  // namespace norvik::graphics
