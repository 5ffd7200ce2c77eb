#include "obj/name_listing.h"

#include "mesh/colour_book.h"
#include "obj/name_side.h"

#include <initializer_list>
#include <string>

namespace norvik::obj {

namespace {

/// The colour entry of a name is the one at its index: with another mesh, or behind a rename, the
/// colours may have shifted.
void fill(const NameSide& side) {
  std::string page;
  std::vector<front::Colour> colours;
  for (int i = 0; i < side.names.count(); ++i) {
    if (i > 0) page += "\r\n";
    page += side.names.item(i);
    colours.push_back(colourOfEntry(side.colours.item(i)));
  }
  side.listing.setText(page);
  side.listing.setLineColours(colours);
}

void hideSide(const NameSide& side) {
  for (front::Control* control : std::initializer_list<front::Control*>{
           &side.listing, &side.names, &side.newName, &side.saveCheck, &side.saveList}) {
    control->hide();
  }
}

void open(front::FormOBJ& form, const NameSide& side, const NameSide& other) {
  hideSide(other);
  form.LabelRichRename.show();
  side.listing.show();
  fill(side);
}

void toggle(front::FormOBJ& form, const NameSide& side, const NameSide& other) {
  if (!side.listing.visible()) return open(form, side, other);
  for (front::Control* control : std::initializer_list<front::Control*>{
           &side.listing, &form.LabelRichRename, &side.names, &side.newName, &form.CheckSaveGroups,
           &form.CheckSaveMaterials}) {
    control->hide();
  }
}

/// The coloured listing stays behind the list.
void bringNames(const NameSide& side) {
  side.saveCheck.show();
  side.names.show();
}

}  // namespace

void showGroupListing(front::FormOBJ& form) {
  if (!form.RichTextBoxGroups.visible()) open(form, groupSide(form), materialSide(form));
}

void wireNameListing(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  form.CommandListGroups.clicked.add(
      [&form] { toggle(form, groupSide(form), materialSide(form)); });
  form.CommandListMats.clicked.add([&form] { toggle(form, materialSide(form), groupSide(form)); });
  form.LabelRichRename.clicked.add([&form] {
    for (const NameSide& side : {groupSide(form), materialSide(form)}) {
      if (side.listing.visible()) bringNames(side);
    }
  });
}

}  // namespace norvik::obj
