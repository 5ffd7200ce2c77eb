// Every control that invites the operator has a tool behind it, or a reason why it has none.

#include "front/form.h"
#include "front/list_box.h"
#include "front/menu_entry.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"
#include "text/host.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace norvik {
namespace {

bool leadsToMore(const front::Form& form, const front::Control& entry) {
  return std::any_of(form.controls().begin(), form.controls().end(), [&](const auto* control) {
    const auto* below = dynamic_cast<const front::MenuEntry*>(control);
    return below != nullptr && below->above() == &entry;
  });
}

bool invites(const front::Control& control) {
  switch (control.kind()) {
    case front::ControlKind::listBox:
    case front::ControlKind::pictureButton:
    case front::ControlKind::commandButton:
    case front::ControlKind::menuEntry:
      return true;
    default:
      return false;
  }
}

bool answered(const front::Control& control) {
  if (const auto* list = dynamic_cast<const front::ListBox*>(&control);
      list != nullptr && list->tickChanged.hasHandlers()) {
    return true;
  }
  return control.pressed.hasHandlers() || control.moved.hasHandlers() ||
         control.released.hasHandlers() || control.clicked.hasHandlers() ||
         control.doubleClicked.hasHandlers() || control.dropped.hasHandlers() ||
         control.filesDropped.hasHandlers() || control.key.hasHandlers();
}

/// Those that have no tool by design, each with its reason.
const std::map<std::string, std::string_view>& inert() {
  static const std::map<std::string, std::string_view> controls{
      {"Opening.MenuSpace", "a gap in the menu bar"},
      {"Opening.MenuPropObjRel",
       "an entry whose tool is reached in another way; its click does nothing"},
      {"Opening.MenuPropTexRel",
       "an entry whose tool is reached in another way; its click does nothing"},
      {"Opening.MenuLimits",
       "an entry whose tool is reached in another way; its click does nothing"},
      {"Opening.MenuTwist",
       "an entry whose tool is reached in another way; its click does nothing"},
      {"Opening.MenuTransferParts",
       "an entry whose tool is reached in another way; its click does nothing"},
      {"Opening.PictureTile", "a picture that only shows something"},
      {"Opening.PicturePushPin", "a picture that only shows something"},
      {"Opening.ListMATColors", "a list that a tool keeps for itself and nobody sees"},
      {"Opening.ListMatHiLite", "a list that a tool keeps for itself and nobody sees"},
      {"Opening.ListChannelsReorderReordered",
       "a list that a tool keeps for itself and nobody sees"},
      {"Opening.ListOBJBatch", "a list that a tool keeps for itself and nobody sees"},
      {"Opening.ListEMCs", "a list that a tool keeps for itself and nobody sees"},
      {"FormOBJ.ListGroupColors", "a list that a tool keeps for itself and nobody sees"},
      {"FormOBJ.ListMATColors", "a list that a tool keeps for itself and nobody sees"},
      {"FormOBJ.ListGrpRen", "a list that a tool keeps for itself and nobody sees"},
      {"FormOBJ.ListMatRen", "a list that a tool keeps for itself and nobody sees"},
      {"FormOBJ.ListLop", "a list that a tool keeps for itself and nobody sees"},
      {"FormECM.ListMinMax", "a list that a tool keeps for itself and nobody sees"},
      {"FormPZ2.ListMATColors", "a list that a tool keeps for itself and nobody sees"},
      {"FormMOR.ListValues", "a list that a tool keeps for itself and nobody sees"},
      {"FormPZ2Combine.ListKeyLinesFirst", "a list that a tool keeps for itself and nobody sees"},
      {"FormPZ2Combine.ListKeyLines", "a list that a tool keeps for itself and nobody sees"},
      {"FormPZ2Combine.ListTGVP", "a list that a tool keeps for itself and nobody sees"},
      {"FormPZ2Combine.ListActors2", "a list that a tool keeps for itself and nobody sees"},
      {"FormPZ2Combine.ListActors1", "a list that a tool keeps for itself and nobody sees"},
      {"FormPZ2Combine.ListFoundMorphs", "a list that a tool keeps for itself and nobody sees"},
      {"FormPZ2Combine.ListNotFound", "a list that a tool keeps for itself and nobody sees"},
      {"FormRemoveFiles.ListChecked", "a list that a tool keeps for itself and nobody sees"},
      {"Opening.ListPropObj", "a list for reading"},
      {"Opening.ListboxListCR2Files", "a list for reading"},
      {"FormMatCoord.ListCR2Mat", "a list for reading"},
      {"FormMatCoord.ListMatsNotInCR2", "a list for reading"},
      {"FormMatCoord.ListOBJMat", "a list for reading"},
      {"FormCR2Install.ListCR2Install", "a list for reading"},
      {"Opening.ListAltGeomNames", "a list whose selection a button beside it takes"},
      {"FormTree.ListPhi", "a list whose selection a button beside it takes"},
      {"FormPZ2.ListActorsWanted", "a list whose selection a button beside it takes"},
      {"FormPZ2.ListMaterialsMATWanted", "a list whose selection a button beside it takes"},
      {"FormRemoveFiles.ListFiles", "a list whose selection a button beside it takes"},
      {"Opening.ChainList", "a list that a waiting tool looks at by itself"},
  };
  return controls;
}

TEST(NothingIsDead, EveryInvitingControlHasAToolOrAReason) {
  const tests::TemporaryFolder folder;
  const auto host = text::makePosixHost();
  tests::ScriptedWorkbench workbench(*host, folder.path());
  std::set<std::string> dead;
  for (const auto* form : workbench.session().forms()) {
    for (const auto* control : form->controls()) {
      if (!invites(*control) || answered(*control) || leadsToMore(*form, *control)) continue;
      dead.insert(form->name() + "." + control->name());
    }
  }
  for (const auto& name : dead) {
    EXPECT_TRUE(inert().contains(name)) << name << " has no tool, and nobody says why";
  }
  for (const auto& [name, why] : inert()) {
    EXPECT_TRUE(dead.contains(name)) << name << " is " << why << ", and yet it has a tool";
  }
}

}  // namespace
}  // namespace norvik
