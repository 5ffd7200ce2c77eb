#include "obj/name_side.h"

#include "text/columns.h"

namespace norvik::obj {

namespace {

constexpr std::size_t kGroupName = 3;
constexpr std::size_t kMaterialName = 8;

}  // namespace

NameSide groupSide(front::FormOBJ& form) {
  return {form.CommandListGroups,
          form.RichTextBoxGroups,
          form.ListGroups,
          form.TextGrpRename,
          form.CheckSaveGroups,
          form.ListGroupsSave,
          form.GroupsAsRead,
          form.ListGroupColors,
          form.ListGrpRen,
          'g',
          "g ",
          kGroupName,
          "Close the Group List first!",
          "You must save the file by exiting the OBJ Screen before saving groups from the file, "
          "since you have renamed some."};
}

NameSide materialSide(front::FormOBJ& form) {
  return {form.CommandListMats,
          form.RichTextBoxMaterials,
          form.ListMaterials,
          form.TextMatRename,
          form.CheckSaveMaterials,
          form.ListMaterialsSave,
          form.MaterialsAsRead,
          form.ListMATColors,
          form.ListMatRen,
          'u',
          "usemtl ",
          kMaterialName,
          "Close the Material List first!",
          "You must save the file by exiting the OBJ Screen before saving materials from the file, "
          "since you have renamed some materials."};
}

bool isOf(const NameSide& side, std::string_view line) {
  return !line.empty() && line.front() == side.letter;
}

std::string_view nameOn(const NameSide& side, std::string_view line) {
  return text::from(line, side.nameColumn);
}

}  // namespace norvik::obj
