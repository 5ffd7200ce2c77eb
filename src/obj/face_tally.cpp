#include "obj/face_tally.h"

#include "mesh/face_tokens.h"
#include "mesh/mesh_store.h"
#include "mesh/obj_line.h"
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
      // The blanks that fill a record are not of the name.
      const std::string_view line = record.substr(0, record.find_last_not_of(' ') + 1);
      if (text::begins(line, "g")) {
        group = named(tally.groups, groupName(line));
      } else {
        material = named(tally.materials, materialName(line));
      }
    }
  });
  return tally;
}

}  // namespace norvik::obj
