#include "builders/phi/mesh_groups.h"

#include "text/columns.h"
#include "text/line_reader.h"

namespace norvik::builders {

MeshGroups readMeshGroups(const text::Disk& disk, std::string_view mesh) {
  static const text::LineFilter looked{text::atStart(" "), text::atStart("g"), text::atStart("f")};
  text::LineReader in(disk, mesh);
  MeshGroups groups;
  std::uint64_t* faces = nullptr;
  for (;;) {
    in.passLines(looked);
    if (in.atEnd()) return groups;
    std::string_view line = in.line();
    if (line.starts_with(' ')) line.remove_prefix(1);
    if (line.starts_with('g')) {
      faces = &groups.try_emplace(std::string{text::from(line, 3)}).first->second;
    } else if (line.starts_with("f ") && faces != nullptr) {
      ++*faces;
    }
  }
}

CutPreview previewCut(const MeshGroups& groups, const std::vector<std::string>& names) {
  CutPreview preview;
  for (const std::string& name : names) {
    const auto found = groups.find(name);
    if (found == groups.end()) {
      preview.missing.push_back(name);
    } else {
      ++preview.groups;
      preview.faces += found->second;
    }
  }
  return preview;
}

}  // namespace norvik::builders
