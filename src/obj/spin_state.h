#pragma once
// What the 3D view keeps between its frames.

namespace norvik::obj {

/// The light's answer of the mesh, each part from 0 to 1.
struct Diffuse {
  float red = 1;
  float green = 0;
  float blue = 0;
};

struct Spin {
  float SpinAngle = 0;
  int SpinSpeed = 1;
  bool SpinStopped = false;
  float FovDivisor = 0;  ///< 0 stands for 2
  Diffuse diffuse;
};

}  // namespace norvik::obj
