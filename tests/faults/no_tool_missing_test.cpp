// Whether every piece of the program that replaces, deletes or moves files is tested on a host that
// fails: each source file that does so through the disk is listed here, with what tests it.

#include "faults/rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>

namespace norvik::tests {

namespace {

namespace fs = std::filesystem;

/// The rows of the table that reach it, or a test file with faults of its own, "room/x_test.cpp".
using Tested = std::vector<std::string>;

/// It touches no file but the program's own scratch files, which a tool with a row works on.
const Tested kScratchOnly{};

const std::map<std::string, Tested>& testedFiles() {
  static const std::map<std::string, Tested> kFiles{
      {"builders/figures/library_file.cpp", {"builders/library_file_test.cpp"}},
      {"builders/figures/null_figure.cpp", {"builders/library_file_test.cpp"}},
      {"builders/geometry/alternate_geometry.cpp",
       {"AlternateGeometry", "AlternateGeometryOnItsResult"}},
      {"builders/phi/create_phi.cpp", {"Phi"}},
      {"builders/phi/cut_branch.cpp", {"BranchCutOverItself", "BranchCutAsNew"}},
      {"builders/phi/edit_phi.cpp", {"PhiEdited"}},
      {"builders/scenes/avi_background.cpp", {"FilmBackground"}},
      {"builders/scenes/camera_convertor.cpp", {"RestoredCameras", "SavedCameras"}},
      {"builders/scenes/mtl_creator.cpp", {"MaterialLibrary"}},
      {"builders/scenes/pz3_to_cr2.cpp", {"SceneToFigure"}},
      {"builders/transfer/extract_part.cpp", kScratchOnly},
      {"builders/transfer/graft.cpp", {"Graft"}},
      {"channels/copy_morph.cpp", {"Copy", "CopyOntoOther", "CopyAsNew", "CopyOfALink"}},
      {"channels/dials/bend.cpp", {"Bend"}},
      {"channels/dials/erc_unique.cpp", {"UniqueName"}},
      {"channels/dials/hide_dials.cpp", {"HideDials", "HideDialsOntoOther"}},
      {"channels/dials/ik_chains.cpp", {"IkChains"}},
      {"channels/dials/reorder.cpp", {"Reorder", "ReorderOntoOther"}},
      {"channels/dials/tracking_speed.cpp", {"TrackingSpeed"}},
      {"channels/dials/twist.cpp", {"TwistRemoved"}},
      {"channels/joints/insert_joint.cpp", {"Joints"}},
      {"channels/mirror/extract.cpp", {"Extract"}},
      {"channels/morph_merge.cpp", kScratchOnly},
      {"channels/removal/morph_remove.cpp",
       {"RemoveMorph", "RemoveMorphOntoOther", "RemoveMorphAsNew", "RemoveMorphs"}},
      {"channels/removal/part_remove.cpp", {"RemovePart", "RemovePartOntoOther", "RemoveParts"}},
      {"channels/removal/scratch_turns.cpp", kScratchOnly},
      {"channels/renaming/rename.cpp", {"RenameMorph", "RenameMorphOntoOther", "RenamePart"}},
      {"desktop/window/main_window.cpp", {"text/disk_moves_test.cpp"}},  // the disk's own copy
      {"dials/rename_pass.cpp", {"DialsToFriendly", "DialsReverted"}},
      {"editor/notes.cpp", {"EditorNotes"}},
      {"editor/text_file.cpp",
       {"EditorInPlace", "EditorOverAnother", "EditorNewName", "EditorLeaving"}},
      {"erc/change_ratio.cpp", {"Ratio"}},
      {"erc/link_writer.cpp", {"Link", "SecondLink"}},
      {"figure/repaired_file.cpp", {"RepairAtOpen", "RepairOfLoneReturns", "RepairOfTheEditor"}},
      {"figure/save.cpp",
       {"Save", "SaveAsNew", "SaveAs", "SaveAsOverAnother", "SaveBeforeOpen", "SaveAtTheExit",
        "figure/data_safety_test.cpp"}},
      {"figure/space_chopper.cpp", {"SpaceChopper"}},
      {"front/scratch_files.cpp", kScratchOnly},
      {"graphics/bmp_file.cpp", {"GraphPaper", "GraphPaperInPlace"}},
      {"graphics/stretched_bmp.cpp", {"MeshTemplate"}},
      {"install/installation.cpp", {"install/installer_faults_test.cpp"}},
      {"install/library_folders.cpp", {}},  // a folder that holds nothing
      {"install/remove_files.cpp", {"install/installer_faults_test.cpp"}},
      {"install/renumber.cpp", {"install/installer_faults_test.cpp"}},
      {"lifecycle/exit.cpp", kScratchOnly},
      {"materials/material_colour.cpp", {"ColourInPlace", "ColourOfACopy"}},
      {"materials/material_coordinator.cpp", {"Coordination"}},
      {"mesh/low_mesh.cpp", kScratchOnly},
      {"mesh/mesh_store.cpp", kScratchOnly},
      {"obj/leaving.cpp", kScratchOnly},  // the note file is made, no more
      {"obj/mash.cpp", {"obj/mash_faults_test.cpp"}},
      {"obj/rewrite_names.cpp", {"MeshRename", "MeshRenameAsAnother"}},
      {"obj/save_result.cpp", {"MeshPart", "MeshMirror"}},
      {"obj/scaler.cpp", {"MeshScale"}},
      {"obj/surgery/extract_geometry.cpp", {"GeometryExport"}},
      {"obj/surgery/lop_box.cpp", {"MeshCut"}},
      {"obj/surgery/merge.cpp", {"MeshMerge"}},
      {"obj/surgery/mirror.cpp", {"MeshMirror"}},
      {"pose/mat_builder.cpp", {"MatOverOld", "MatAsNew"}},
      {"pose/mor_builder.cpp", {"MorOverOld", "MorAsNew"}},
      {"pose/mor_skeleton.cpp", kScratchOnly},
      {"pose/pose_builder.cpp", {"PoseOverOld", "PoseAsNew"}},
      {"pose/weld.cpp", {"WeldOverOld", "WeldAsNew"}},
      {"pose/weld_missing.cpp", kScratchOnly},
  };
  return kFiles;
}

std::string textOf(const fs::path& file) {
  std::stringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

const fs::path kProgram = fs::path(NORVIK_SOURCE_DIR) / "src";
const fs::path kTests = fs::path(NORVIK_SOURCE_DIR) / "tests";

/// The source files above the disk that take a file from its place or change it where it stands.
std::vector<std::string> filesThatChangeFiles() {
  const std::regex changes(R"(\bdisk_?\.(replace|replaceKeeping|remove|removeFolder|rename|copy)"
                           R"(|openForUpdating|openForAppending)\()");
  std::vector<std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(kProgram)) {
    const std::string name = entry.path().lexically_relative(kProgram).generic_string();
    if (entry.path().extension() != ".cpp" || name.starts_with("text/")) continue;
    if (std::regex_search(textOf(entry.path()), changes)) files.push_back(name);
  }
  std::sort(files.begin(), files.end());
  return files;
}

TEST(ToolFaultsTable, MissesNoToolThatChangesFiles) {
  std::vector<std::string> listed;
  for (const auto& [file, tested] : testedFiles()) listed.push_back(file);
  EXPECT_EQ(filesThatChangeFiles(), listed);
}

TEST(ToolFaultsTable, HasTheRowsThatTestThem) {
  std::vector<std::string> rows;
  for (const FaultRow& row : allRows()) rows.push_back(row.name);
  for (const auto& [file, tested] : testedFiles()) {
    for (const std::string& by : tested) {
      const bool isRow = std::find(rows.begin(), rows.end(), by) != rows.end();
      const bool isTest =
          by.ends_with("_test.cpp") && textOf(kTests / by).find("FaultyHost") != std::string::npos;
      EXPECT_TRUE(isRow || isTest) << file << " by " << by;
    }
  }
}

}  // namespace

}  // namespace norvik::tests
