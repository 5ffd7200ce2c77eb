#pragma once
// The assembly of the program: the forms, and every tool on its trigger.

#include "builders/phi/form_phi.h"
#include "builders/phi/form_tree.h"
#include "dials/renamer_form.h"
#include "editor/form_editor.h"
#include "editor/form_notes.h"
#include "erc/dialog_erc.h"
#include "erc/form_ecm.h"
#include "erc/form_list_emcs.h"
#include "front/form_obj.h"
#include "front/session.h"
#include "install/form_cr2_install.h"
#include "install/form_remove_files.h"
#include "install/form_renumber.h"
#include "install/install_menu.h"
#include "materials/form_mat_coord.h"
#include "pose/form_mor.h"
#include "pose/form_pz2.h"
#include "pose/form_pz2_combine.h"
#include "tools/form_launch.h"
#include "tools/form_scale.h"
#include "tools/form_viewer.h"
#include "tools/magnifier_form.h"
#include "workshop/workshop.h"

#include <string>

namespace norvik::workbench {

/// Owns the forms and the session of a running program. A front end makes one, delivers the start
/// and then what the operator does.
class Workbench {
 public:
  /// `programFolder` is a system path without a backslash at its end; `commandLine` the program's
  /// own command line, as it stands.
  Workbench(front::FrontEnd& front, text::Disk& disk, front::Settings& settings,
            std::string programFolder, std::string commandLine);

  front::Session& session() { return session_; }

  /// Runs the start of the program.
  void start();

 private:
  void wireTools();
  void setUpHistory();

  front::Opening opening_;
  front::FormOBJ formObj_;
  erc::DialogERC dialogErc_;
  erc::FormECM formEcm_;
  erc::FormListEMCs formListEmcs_;
  builders::FormPhi formPhi_;
  builders::FormTree formTree_;
  materials::FormMatCoord formMatCoord_;
  pose::FormPZ2 formPZ2_;
  pose::FormMOR formMOR_;
  pose::FormPZ2Combine formPZ2Combine_;
  editor::FormEditor formEditor_;
  editor::FormNotes formNotes_;
  editor::FormHole formHole_;
  dials::Renamer renamer_;
  tools::FormViewer formViewer_;
  tools::FormScale formScale_;
  tools::Magnifier magnifier_;
  tools::FormLaunch formLaunch_;
  install::FormCR2Install formCR2Install_;
  install::FormRemoveFiles formRemoveFiles_;
  install::FormRenumber formRenumber_;
  front::Session session_;
  obj::Workshop workshop_;
  install::InstallerView installerView_{opening_};
};

}  // namespace norvik::workbench
