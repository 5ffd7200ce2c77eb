#include "obj/face_tally.h"

#include "mesh/face_tokens.h"
#include "mesh/mesh_store.h"
#include "mesh/obj_line.h"
#include "mesh/record_walk.h"
#include "obj/pending_renames.h"
#include "text/byte_reader.h"
#include "text/columns.h"

namespace norvik::obj {

FaceTally tallyFaces(front::Session& session) {
  FaceTally tally;
  std::uint64_t* group = nullptr;
  std::uint64_t* material = nullptr;
  const auto named = [](FaceCounts& counts, std::string_view name) {
    return &counts.try_emplace(std::string{name}).first->second;
  };
  text::ignoringErrors([&] {
    text::ByteReader records(session.disk, session.opening.inProgramFolder(kFaceFile));
    for (auto record = records.read(kFaceRecordLength); !record.empty();
         record = records.read(kFaceRecordLength)) {
      if (text::begins(record, "f")) {
        if (group != nullptr) ++*group;
        if (material != nullptr) ++*material;
        continue;
      }
      const std::string_view line = withoutFilling(record);
      if (text::begins(line, "g")) {
        group = named(tally.groups, groupName(line));
      } else {
        material = named(tally.materials, materialName(line));
      }
    }
  });
  return tally;
}

FaceCounts facesOnShow(front::Session& session, const NameSide& side) {
  const FaceTally tally = tallyFaces(session);
  const NamesOnShow shown(side);
  FaceCounts counts;
  for (const auto& [name, faces] : side.letter == 'g' ? tally.groups : tally.materials) {
    counts[std::string{withoutFilling(shown.of(name))}] += faces;
  }
  return counts;
}

std::uint64_t facesOf(const FaceCounts& counts, std::string_view name) {
  const auto found = counts.find(withoutFilling(name));
  return found == counts.end() ? 0 : found->second;
}

}  // namespace norvik::obj
