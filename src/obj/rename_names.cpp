#include "obj/rename_names.h"

#include "obj/name_side.h"
#include "obj/pending_renames.h"

#include <string>

namespace norvik::obj {

namespace {

void rename(front::FormOBJ& form, const NameSide& side) {
  const int index = side.names.index();
  if (index == front::ListBox::kNone) return;
  const std::string old{side.names.chosen()};
  const std::string& name = side.newName.text();
  if (side.asRead.empty()) side.asRead = side.names.items();
  side.renames.add(old + "*" + (name.empty() ? " NULL" : name));
  side.names.remove(index);
  if (!name.empty()) side.names.insert(index, name);
  form.RenamesPending = true;
  // The next name takes the place of this one as it is typed.
  side.newName.setCaret(0, name.size());
}

void wire(front::FormOBJ& form, NameSide (*sideOf)(front::FormOBJ&)) {
  const NameSide side = sideOf(form);
  side.names.clicked.add([&form, sideOf] {
    front::TextBox& box = sideOf(form).newName;
    box.show();
    form.setFocus(box);
  });
  side.newName.key.add([&form, sideOf](const std::string& key) {
    if (key == "Enter") rename(form, sideOf(form));
  });
}

}  // namespace

void wireRenaming(Workshop& workshop) {
  wire(workshop.form, groupSide);
  wire(workshop.form, materialSide);
  workshop.form.renameTakenBack.add([&workshop](front::RenameBack& back) {
    // The names are still on their way into the list.
    if (workshop.reading) return;
    const bool materials = back.materials;
    const NameSide side = materials ? materialSide(workshop.form) : groupSide(workshop.form);
    back.also = takeRenameBack(side, back.index);
    workshop.form.RenamesPending =
        workshop.form.ListGrpRen.count() > 0 || workshop.form.ListMatRen.count() > 0;
  });
}

}  // namespace norvik::obj
