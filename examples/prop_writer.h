#pragma once

#include "material_writer.h"
#include "mesh.h"
#include "shape.h"
#include "text_file.h"

#include <string>
#include <vector>

namespace norvik::examples {

struct PropMorph {
  std::string name;
  Shape shape;
};

struct Prop {
  std::string name;
  std::string title;
  std::string parent;
  // The OBJ by its colon path; empty for a prop that holds its mesh in the library file itself.
  std::string geometry;
  Mesh mesh;
  std::vector<MaterialBlock> materials;
  std::vector<PropMorph> morphs;
};

// Writes a PP2 or an HR2, which are alike: where the meshes are, then the props, then the list of
// names.
void writePropFile(TextFile& file, const std::vector<Prop>& props);

// A prop's mesh in an OBJ of its own.
void writePropObj(TextFile& file, const Prop& prop);

// The sample's props.
Prop ballProp();
Prop staffProp();
Prop boxProp();
Prop buckleProp();
Prop hairProp();

}  // namespace norvik::examples
