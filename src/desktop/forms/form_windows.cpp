#include "desktop/forms/form_windows.h"

#include "desktop/forms/phi_window.h"
#include "desktop/forms/tree_window.h"
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

std::unique_ptr<FormWindow> makePhi(front::Form& form, const WindowParts& parts) {
  return std::make_unique<PhiWindow>(parts, dynamic_cast<builders::FormPhi&>(form));
}

std::unique_ptr<FormWindow> makeTree(front::Form& form, const WindowParts& parts) {
  return std::make_unique<TreeWindow>(parts, dynamic_cast<builders::FormTree&>(form));
}

/// One line a form, by its name.
constexpr Entry kWindows[] = {
    {"FormOBJ", makeWorkshop},
    {"FormPhi", makePhi},
    {"FormTree", makeTree},
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
