#include "front/scratch_files.h"

#include "text/file_names.h"

#include <algorithm>
#include <array>

namespace norvik::front {

namespace {

/// Texts that tools write on their way to a result have these endings, and so have the figures and
/// meshes below.
constexpr auto kEndings = std::to_array<std::string_view>({".txt", ".tmp", ".doc"});
constexpr auto kResultsOnTheWay = std::to_array<std::string_view>(
    {"Combine.pz2", "CombineNF.pz2", "Mat.pz2", "newobj.obj", "Param.obj", "Reorder.cr2"});
constexpr std::string_view kNotes = "Notes.txt";

}  // namespace

bool isScratchFile(std::string_view name) {
  if (text::sameName(name, kNotes)) return false;
  const auto isIt = [name](std::string_view other) { return text::sameName(other, name); };
  const auto ends = [name](std::string_view ending) {
    return name.size() >= ending.size() &&
           text::sameName(ending, name.substr(name.size() - ending.size()));
  };
  return std::any_of(kEndings.begin(), kEndings.end(), ends) ||
         std::any_of(kResultsOnTheWay.begin(), kResultsOnTheWay.end(), isIt);
}

void deleteScratchFiles(Session& session, std::span<const std::string_view> names) {
  for (const std::string_view name : names) {
    text::ignoringErrors([&] { session.disk.remove(session.opening.inProgramFolder(name)); });
  }
}

}  // namespace norvik::front
