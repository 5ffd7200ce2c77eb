#include "workbench/workbench.h"

#include "channels/channel_views.h"
#include "channels/copy_morph.h"
#include "channels/trash.h"
#include "figure/bracket_checker.h"
#include "figure/map_lister.h"
#include "figure/material_lister.h"
#include "figure/open_file.h"
#include "figure/path_boxes.h"
#include "figure/save.h"
#include "figure/source_open.h"
#include "front/help_boxes.h"
#include "lifecycle/closing_animation.h"
#include "lifecycle/exit.h"
#include "lifecycle/file_menu.h"
#include "lifecycle/help_menu.h"
#include "lifecycle/recent_click.h"
#include "lifecycle/start.h"
#include "obj/fall_back_view.h"
#include "obj/hot_keys.h"
#include "obj/leaving.h"
#include "obj/open_workshop.h"
#include "obj/play.h"
#include "obj/reset.h"
#include "obj/spin.h"
#include "obj/view.h"
#include "obj/view_keys.h"
#include "pose/mat_builder.h"
#include "pose/mat_colours.h"
#include "pose/mor_builder.h"
#include "pose/pz2_editor.h"
#include "pose/weld.h"

namespace norvik::workbench {

Workbench::Workbench(front::FrontEnd& front, text::Disk& disk, front::Settings& settings,
                     std::string programFolder, std::string commandLine)
    : session_(front, disk, settings, opening_), workshop_(session_, formObj_) {
  session_.addForm(formObj_);
  session_.addForm(formPZ2_);
  session_.addForm(formMOR_);
  session_.addForm(formPZ2Combine_);
  opening_.ProgramFolder = std::move(programFolder);
  session_.commandLine = std::move(commandLine);
  wireTools();
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
  obj::wireLeaving(workshop_);
  obj::wireSpin(workshop_);
  obj::wireViewKeys(workshop_);
  lifecycle::wireRecentFiles(session_);
  lifecycle::wireFileMenu(session_);
  lifecycle::wireHelpMenu(session_);
  lifecycle::wireClosingAnimation(session_);
  lifecycle::wireExit(session_);
}

void Workbench::start() {
  session_.deliver([this] { lifecycle::startProgram(session_); });
}

}  // namespace norvik::workbench
