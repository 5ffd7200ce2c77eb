#pragma once
// What the 3D view keeps between its frames.

#include "graphics/device3d.h"

namespace norvik::obj {

using Diffuse = graphics::Material;

struct Spin {
  float SpinAngle = 0;  ///< grows by the speed with each frame; 360 turn the mesh by one radian
  int SpinSpeed = 1;
  bool SpinStopped = false;
  float FovDivisor = 0;      ///< 0 stands for 2
  Diffuse diffuse{1, 0, 0};  ///< the mesh's colour, each part from 0 to 1
  bool looping = false;      ///< the spin loop is under way
  int loads = 0;             ///< of the form: a loop ends with the load that it began in
};

}  // namespace norvik::obj
