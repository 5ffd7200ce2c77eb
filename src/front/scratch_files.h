#pragma once
// The scratch files of the whole program, in the program folder, that start and exit sweep away.

#include "front/session.h"

#include <array>
#include <span>
#include <string_view>

namespace norvik::front {

/// The files that must not outlive the program.
inline constexpr auto kScratchFiles = std::to_array<std::string_view>({
    "\\cr2temp.txt",
    "\\color.txt",
    "\\UV.txt",
    "\\group.txt",
    "\\groupsave.txt",
    "\\groupvert.txt",
    "\\groupvertex.txt",
    "\\groupface.txt",
    "\\FArray.txt",
    "\\VArray.txt",
    "\\VTArray.txt",
    "\\secmapsave.txt",
    "\\Param.obj",
    "\\cr2.doc",
    "\\Edit.tmp",
});

/// Those of a mesh, which a run that died may have left.
inline constexpr auto kMeshScratchFiles =
    std::to_array<std::string_view>({"\\FArray.txt", "\\VTArray.txt", "\\VArray.txt"});

/// Whether a file of that name in the program folder is a tool's own. Files that a tool leaves
/// there for the operator, such as "\\Notes.txt" and "\\AltGeom.cr2", are not.
bool isScratchFile(std::string_view name);

/// Deletes scratch files, errors ignored.
void deleteScratchFiles(Session& session, std::span<const std::string_view> names);

}  // namespace norvik::front
