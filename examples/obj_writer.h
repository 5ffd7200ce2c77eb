#pragma once

#include "body_plan.h"
#include "mesh.h"
#include "text_file.h"

#include <cstddef>
#include <string>
#include <vector>

namespace norvik::examples {

struct ObjCounts {
  std::size_t vertices = 0;
  std::size_t texturePoints = 0;
  std::size_t faces = 0;
};

// Writes the body as one group a part. Only one part's mesh is in memory at a time.
ObjCounts writeBodyObj(TextFile& file, const std::vector<BodyPart>& plan, const Density& density);

// Writes a mesh of its own, a prop's or a hair's, as one group.
void writeMeshObj(TextFile& file, std::size_t tabs, const std::string& group, const Mesh& mesh,
                  const std::vector<std::string>& materials);

// The name that a figure's material bears in its mesh and in its material block.
const std::string& materialName(Material material);

}  // namespace norvik::examples
