#include "workbench/workbench.h"

#include "builders/figures/library_file.h"
#include "builders/figures/master_cr2.h"
#include "builders/figures/null_figure.h"
#include "builders/geometry/alternate_geometry.h"
#include "builders/phi/create_phi.h"
#include "builders/phi/cut_branch.h"
#include "builders/phi/edit_phi.h"
#include "builders/phi/phi_lister.h"
#include "builders/phi/view_phi.h"
#include "builders/scenes/avi_background.h"
#include "builders/scenes/camera_convertor.h"
#include "builders/scenes/mtl_creator.h"
#include "builders/scenes/pz3_to_cr2.h"
#include "builders/transfer/extract_part.h"
#include "builders/transfer/graft_part.h"
#include "channels/actor_double_click.h"
#include "channels/channel_views.h"
#include "channels/copy_morph.h"
#include "channels/dials/dial_tools.h"
#include "channels/joints/joints.h"
#include "channels/mirror/extract.h"
#include "channels/mirror/mirror.h"
#include "channels/removal/trash.h"
#include "channels/renaming/rename.h"
#include "dials/renamer.h"
#include "editor/manual_editor.h"
#include "editor/notes.h"
#include "erc/change_ratio.h"
#include "erc/link_builder.h"
#include "erc/ratio_listing.h"
#include "figure/bracket_checker.h"
#include "figure/map_lister.h"
#include "figure/material_lister.h"
#include "figure/open_file.h"
#include "figure/path_boxes.h"
#include "figure/save.h"
#include "figure/source_open.h"
#include "front/help_boxes.h"
#include "front/history_limits.h"
#include "front/scratch_files.h"
#include "install/cr2_files.h"
#include "install/figure_files.h"
#include "install/installation.h"
#include "install/library_folders.h"
#include "install/remove_files.h"
#include "install/renumber.h"
#include "install/target_folders.h"
#include "lifecycle/closing_animation.h"
#include "lifecycle/exit.h"
#include "lifecycle/file_menu.h"
#include "lifecycle/help_menu.h"
#include "lifecycle/recent_click.h"
#include "lifecycle/start.h"
#include "materials/material_colour.h"
#include "materials/material_coordinator.h"
#include "obj/apply_map.h"
#include "obj/leaving.h"
#include "obj/make_uv.h"
#include "obj/mash.h"
#include "obj/name_listing.h"
#include "obj/name_mark.h"
#include "obj/rename_names.h"
#include "obj/save_map.h"
#include "obj/save_names.h"
#include "obj/scaler.h"
#include "obj/sec_map.h"
#include "obj/surgery/add_mesh.h"
#include "obj/surgery/extract_geometry.h"
#include "obj/surgery/lop_box.h"
#include "obj/surgery/merge.h"
#include "obj/surgery/mirror.h"
#include "obj/surgery/phi_lopper.h"
#include "obj/uv_map.h"
#include "obj/view_map.h"
#include "pose/mat_builder.h"
#include "pose/mat_colours.h"
#include "pose/mor_builder.h"
#include "pose/pz2_editor.h"
#include "pose/weld.h"
#include "text/history.h"
#include "tools/graph_paper.h"
#include "tools/launcher.h"
#include "tools/magnifier.h"
#include "tools/map_viewer.h"
#include "workshop/fall_back_view.h"
#include "workshop/hot_keys.h"
#include "workshop/open_workshop.h"
#include "workshop/play.h"
#include "workshop/reset.h"
#include "workshop/spin.h"
#include "workshop/view.h"
#include "workshop/view_keys.h"

namespace norvik::workbench {

Workbench::Workbench(front::FrontEnd& front, text::Disk& disk, front::Settings& settings,
                     std::string programFolder, std::string commandLine)
    : session_(front, disk, settings, opening_), workshop_(session_, formObj_) {
  session_.addForm(formObj_);
  session_.addForm(dialogErc_);
  session_.addForm(formEcm_);
  session_.addForm(formListEmcs_);
  session_.addForm(formPhi_);
  session_.addForm(formTree_);
  session_.addForm(formMatCoord_);
  session_.addForm(formPZ2_);
  session_.addForm(formMOR_);
  session_.addForm(formPZ2Combine_);
  session_.addForm(formEditor_);
  session_.addForm(formNotes_);
  session_.addForm(formHole_);
  session_.addForm(renamer_);
  session_.addForm(formViewer_);
  session_.addForm(formScale_);
  session_.addForm(magnifier_);
  session_.addForm(formLaunch_);
  session_.addForm(formCR2Install_);
  session_.addForm(formRemoveFiles_);
  session_.addForm(formRenumber_);
  opening_.ProgramFolder = std::move(programFolder);
  session_.commandLine = std::move(commandLine);
  wireTools();
  setUpHistory();
}

void Workbench::setUpHistory() {
  text::History* const history = session_.disk.history();
  if (history == nullptr) return;
  history->setClock([this] { return session_.front.now(); });
  history->setLimits([this] { return front::historyLimits(session_.settings); });
  text::ignoringErrors([&] {
    history->setScratchFiles(session_.disk.hostPath(opening_.ProgramFolder), front::isScratchFile);
  });
}

void Workbench::wireTools() {
  // In the order of the menus and panes; entries that are not here do nothing.
  front::wireHelpBoxes(session_);
  figure::wireOpen(session_);
  figure::wireSave(session_);
  figure::wireSourceOpen(session_);
  figure::wireBracketChecker(session_);
  figure::wireMaterialList(session_);
  figure::wireTextureList(session_);
  figure::wirePathBoxes(session_);
  channels::wireChannelViews(session_);
  channels::wireCopyMorph(session_);
  channels::wireTrash(session_);
  channels::wireRename(session_);
  channels::wireActorDoubleClick(session_);
  channels::wireDialTools(session_);
  channels::wireMirror(session_);
  channels::wireExtract(session_);
  channels::wireJoints(session_);
  erc::wireLinkBuilder(session_, dialogErc_, formEcm_);
  erc::wireRatioListing(session_, formListEmcs_);
  erc::wireChangeRatio(session_, formListEmcs_);
  builders::wireMasterCr2(session_);
  builders::wireNullFigure(session_);
  builders::wireLibraryFile(session_);
  builders::wireExtractPart(session_);
  builders::wireGraftPart(session_);
  builders::wireCreatePhi(session_, formPhi_);
  builders::wireViewPhi(session_, formPhi_);
  builders::wireEditPhi(session_, formPhi_);
  builders::wirePhiLister(session_, formTree_);
  builders::wireCutBranch(session_, formTree_);
  builders::wireAlternateGeometry(session_);
  builders::wirePz3ToCr2(session_);
  builders::wireAviBackground(session_);
  builders::wireCameraConvertor(session_);
  builders::wireMtlCreator(session_);
  materials::wireMaterialColours(session_);
  materials::wireMaterialCoordinator(session_, formMatCoord_);
  pose::wirePz2Editor(session_, formPZ2_);
  pose::wireMatColours(session_, formPZ2_);
  pose::wireDonePZ2(session_, formPZ2_);
  pose::wireMorBuilder(session_, formMOR_);
  pose::wireWelder(session_, formPZ2Combine_);
  obj::wireOpenWorkshop(workshop_);
  obj::wireView(workshop_);
  obj::wireFallBackView(workshop_);
  obj::wireReset(workshop_);
  obj::wireHotKeyList(workshop_);
  obj::wirePlay(workshop_);
  obj::wireMirror(workshop_);
  obj::wireAddMesh(workshop_);
  obj::wireMerge(workshop_);
  obj::wireLopBox(workshop_);
  obj::wirePhiLopper(workshop_);
  obj::wireExtractGeometry(session_);
  obj::wireLeaving(workshop_);
  obj::wireNameListing(workshop_);
  obj::wireNameMark(workshop_);
  obj::wireRenaming(workshop_);
  obj::wireSavingNames(workshop_);
  obj::wireMakeUV(workshop_);
  obj::wireUVMap(workshop_);
  obj::wireSecMap(workshop_);
  obj::wireSaveMap(workshop_);
  obj::wireViewMap(workshop_);
  obj::wireApplyMap(workshop_);
  obj::wireMash(session_);
  obj::wireScaler(session_);
  obj::wireSpin(workshop_);
  obj::wireViewKeys(workshop_);
  editor::wireManualEditor(session_, formEditor_);
  editor::wireNotepad(session_);
  editor::wireFormNotes(session_, formNotes_);
  editor::wireFormHole(session_, formHole_, formObj_);
  dials::wireRenamer(session_, renamer_);
  tools::wireMapViewer(session_, formViewer_);
  tools::wireGraphPaper(session_, formScale_);
  tools::wireMagnifier(session_, formObj_, magnifier_);
  tools::wireLauncher(session_, formLaunch_);
  install::wireInstallMenu(session_, installerView_);
  install::wirePrintCR2Files(session_);
  install::wireTargetFolders(session_, formCR2Install_);
  install::wireInstallation(session_, formCR2Install_, installerView_);
  install::wireLibraryFolders(session_, formCR2Install_);
  install::wireFigureFiles(session_, formRemoveFiles_);
  install::wireRemoveFiles(session_, formRemoveFiles_);
  install::wireRenumber(session_, formRenumber_);
  lifecycle::wireRecentFiles(session_);
  lifecycle::wireFileMenu(session_);
  lifecycle::wireHelpMenu(session_);
  lifecycle::wireClosingAnimation(session_);
  lifecycle::wireExit(session_);
}

void Workbench::start() {
  session_.deliver(opening_.name(), [this] { lifecycle::startProgram(session_); });
}

}  // namespace norvik::workbench
