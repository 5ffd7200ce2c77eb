#pragma once
// Meshes that are too low to be seen.

#include "front/session.h"

#include <string>
#include <string_view>

namespace norvik::obj {

inline constexpr float kLowMeshHeight = 0.1F;
inline constexpr std::string_view kParamFile = "\\Param.obj";

/// A height as it is raised: the zeros behind the point are taken out, so that 0.00123 becomes
/// 1.23.
std::string raisedHeight(std::string_view y);

/// Writes the mesh to "\Param.obj" with every y raised; all other lines stay as they are.
void rewriteLowMesh(front::Session& session, const std::string& path);

}  // namespace norvik::obj
