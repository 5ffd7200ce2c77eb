#include "desktop/forms/form_windows.h"

#include "desktop/forms/cr2_install_window.h"
#include "desktop/forms/editor_window.h"
#include "desktop/forms/launch_window.h"
#include "desktop/forms/link_dialog_window.h"
#include "desktop/forms/link_window.h"
#include "desktop/forms/magnifier_window.h"
#include "desktop/forms/material_coordinator_window.h"
#include "desktop/forms/mor_window.h"
#include "desktop/forms/notes_window.h"
#include "desktop/forms/phi_window.h"
#include "desktop/forms/pose_window.h"
#include "desktop/forms/ratio_window.h"
#include "desktop/forms/remove_files_window.h"
#include "desktop/forms/renamer_window.h"
#include "desktop/forms/renumber_window.h"
#include "desktop/forms/scale_window.h"
#include "desktop/forms/tree_window.h"
#include "desktop/forms/viewer_window.h"
#include "desktop/forms/weld_window.h"
#include "desktop/window/mesh_window.h"

namespace norvik::desktop {

namespace {

using MakeWindow = std::unique_ptr<FormWindow> (*)(front::Form& form, const WindowParts& parts);

struct Entry {
  std::string_view form;
  MakeWindow make;
};

std::unique_ptr<FormWindow> makeWorkshop(front::Form& form, const WindowParts& parts) {
  return std::make_unique<MeshWindow>(parts.maker, parts.session,
                                      dynamic_cast<front::FormOBJ&>(form), parts.frontEnd,
                                      parts.unload, parts.parent);
}

template <typename Window, typename Form>
std::unique_ptr<FormWindow> makeLaidOut(front::Form& form, const WindowParts& parts) {
  return std::make_unique<Window>(parts, dynamic_cast<Form&>(form));
}

std::unique_ptr<FormWindow> makeCoordinator(front::Form& form, const WindowParts& parts) {
  return std::make_unique<MaterialCoordinatorWindow>(parts.maker, parts.session,
                                                     dynamic_cast<materials::FormMatCoord&>(form),
                                                     parts.unload, parts.parent);
}

/// One line a form, by its name.
constexpr Entry kWindows[] = {
    {"FormCR2Install", makeLaidOut<Cr2InstallWindow, install::FormCR2Install>},
    {"FormRemoveFiles", makeLaidOut<RemoveFilesWindow, install::FormRemoveFiles>},
    {"FormRenumber", makeLaidOut<RenumberWindow, install::FormRenumber>},
    {"DialogERC", makeLaidOut<LinkDialogWindow, erc::DialogERC>},
    {"FormEditor", makeLaidOut<EditorWindow, editor::FormEditor>},
    {"FormNotes", makeLaidOut<NotesWindow, editor::FormNotes>},
    {"FormHole", makeLaidOut<HoleWindow, editor::FormHole>},
    {"FormECM", makeLaidOut<LinkWindow, erc::FormECM>},
    {"FormListEMCs", makeLaidOut<RatioWindow, erc::FormListEMCs>},
    {"FormMatCoord", makeCoordinator},
    {"FormOBJ", makeWorkshop},
    {"FormPhi", makeLaidOut<PhiWindow, builders::FormPhi>},
    {"FormTree", makeLaidOut<TreeWindow, builders::FormTree>},
    {"FormPZ2", makeLaidOut<PoseWindow, pose::FormPZ2>},
    {"FormMOR", makeLaidOut<MorWindow, pose::FormMOR>},
    {"FormPZ2Combine", makeLaidOut<WeldWindow, pose::FormPZ2Combine>},
    {"Renamer", makeLaidOut<RenamerWindow, dials::Renamer>},
    {"FormViewer", makeLaidOut<ViewerWindow, tools::FormViewer>},
    {"FormScale", makeLaidOut<ScaleWindow, tools::FormScale>},
    {"Magnifier", makeLaidOut<MagnifierWindow, tools::Magnifier>},
    {"FormLaunch", makeLaidOut<LaunchWindow, tools::FormLaunch>},
};

}  // namespace

std::unique_ptr<FormWindow> makeFormWindow(front::Form& form, const WindowParts& parts) {
  for (const Entry& entry : kWindows) {
    if (entry.form == form.name()) return entry.make(form, parts);
  }
  auto window = std::make_unique<FormWindow>(parts.maker, form, parts.unload, parts.parent);
  window->placeAll();
  return window;
}

}  // namespace norvik::desktop
