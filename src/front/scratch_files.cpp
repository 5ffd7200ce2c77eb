#include "front/scratch_files.h"

#include "text/file_names.h"

#include <algorithm>

namespace norvik::front {

namespace {

/// Further files that tools write on their way to a result. The three at the end lie in the current
/// folder, which may be the program folder.
constexpr auto kWorkFiles = std::to_array<std::string_view>({
    "Avi.txt",       "bp.txt",        "cam.txt",         "ChangeRatio.txt", "Combine.pz2",
    "CombineNF.pz2", "CR2.tmp",       "CR2-1.tmp",       "cr21.doc",        "dial.tmp",
    "EMC.tmp",       "FArrayAdd.txt", "InsertMorph.txt", "Jnt.txt",         "jointfile.txt",
    "Lop.txt",       "Mat.pz2",       "Merge.txt",       "Mirror.txt",      "MirrorOBJ.txt",
    "Mor.txt",       "Mor1.txt",      "mtl.txt",         "newobj.obj",      "newobj.txt",
    "newobj1.txt",   "NorvikVer.txt", "obj.txt",         "Phi.txt",         "Pose.txt",
    "PZ3.txt",       "RenMorph.txt",  "Reorder.cr2",     "SaveMorph.txt",   "SaveMorph1.txt",
    "TempBend.txt",  "TempIK.txt",    "tempjoint.txt",   "tempobj.txt",     "TS.txt",
    "UVNew.obj",     "VArrayAdd.txt", "VTArrayAdd.txt",  "XMorph.txt",      "XMorph1.txt",
    "Chop.doc",      "Dials.tmp",     "newcr2.doc",
});

}  // namespace

bool isScratchFile(std::string_view name) {
  const auto isIt = [name](std::string_view scratch) {
    if (scratch.starts_with('\\')) scratch.remove_prefix(1);
    return text::sameName(scratch, name);
  };
  return std::any_of(kScratchFiles.begin(), kScratchFiles.end(), isIt) ||
         std::any_of(kWorkFiles.begin(), kWorkFiles.end(), isIt);
}

void deleteScratchFiles(Session& session, std::span<const std::string_view> names) {
  for (const std::string_view name : names) {
    text::ignoringErrors([&] { session.disk.remove(session.opening.inProgramFolder(name)); });
  }
}

}  // namespace norvik::front
