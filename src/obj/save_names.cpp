#include "obj/save_names.h"

#include "front/stoppable_pass.h"
#include "obj/name_side.h"
#include "obj/save_result.h"
#include "text/columns.h"
#include "text/rewrite_pass.h"

#include <set>
#include <string>

namespace norvik::obj {

namespace {

constexpr std::string_view kResult = "\\newobj.obj";
constexpr std::string_view kDone = "DONE";

using SideOf = NameSide (*)(front::FormOBJ&);

/// Which lines of a mesh are saved.
class ChosenLines {
 public:
  ChosenLines(const NameSide& side, const NameSide& other) : side_(side), other_(other) {
    for (const int index : side.saveList.ticks()) wanted_.emplace(side.saveList.item(index));
  }

  void take(std::string_view line, text::LineWriter& out) {
    // The other side's last line comes first, unless the next one is of that side: one that
    // follows the name at once is so written twice.
    if (printing_ && !printedOther_ && !isOf(other_, line)) {
      if (!lastOther_.empty()) out.line(lastOther_);
      printedOther_ = true;
    }
    if (line == "g" || text::begins(line, "v")) {
      out.line(line);
      return;
    }
    if (isOf(other_, line)) lastOther_ = line;
    if (isOf(side_, line)) {
      printing_ = wanted_.find(text::trimmed(nameOn(side_, line))) != wanted_.end();
      if (printing_) printedOther_ = false;
    }
    if (printing_) out.line(line);
  }

 private:
  const NameSide& side_;
  const NameSide& other_;
  std::set<std::string, std::less<>> wanted_;
  std::string lastOther_;
  bool printing_ = false;
  bool printedOther_ = false;
};

/// A part of a mesh is not to take the place of the whole by a mere return key.
std::string proposal(std::string_view source) {
  constexpr std::string_view kEnding = ".obj";
  return std::string{text::withoutLast(source, kEnding.size())}.append("-part").append(kEnding);
}

void putSavingAway(front::FormOBJ& form, const NameSide& side) {
  side.saveCheck.setValue(false);
  side.saveCheck.hide();
  for (front::ListBox* list : {&side.names, &side.saveList}) {
    list->clear();
    list->hide();
  }
  side.newName.setText({});
  form.PictureStore.refresh();
}

void saveChosen(Workshop& workshop, const NameSide& side, const NameSide& other) {
  front::Session& session = workshop.session;
  if (side.renames.count() > 0) {
    session.front.messageBox(side.renamedFirst, "Error!", front::kOk);
    return;
  }
  const std::string source = session.opening.LabelOBJFileName.caption();
  const std::string result = session.opening.inProgramFolder(kResult);
  session.hourglass(true);
  front::runStoppable(session.front, [&] {
    text::RewritePass pass(session.disk, source, result);
    ChosenLines chosen(side, other);
    while (!pass.in().atEnd()) {
      std::string_view line = pass.in().line();
      if (text::begins(line, " ")) line.remove_prefix(1);
      chosen.take(line, pass.out());
    }
    pass.finish();
  });
  session.hourglass(false);
  saveResult(session, result, proposal(source), {"Save what was chosen as", front::kMeshFilter});
  putSavingAway(workshop.form, side);
}

void showSaveList(const NameSide& side) {
  side.saveList.clear();
  if (side.saveCheck.value()) {
    for (const std::string& name : side.names.items()) side.saveList.add(name);
    side.saveList.add(kDone);
  }
  side.saveList.setVisible(side.saveCheck.value());
  side.names.setVisible(!side.saveCheck.value());
}

void wire(Workshop& workshop, SideOf sideOf, SideOf otherOf) {
  front::FormOBJ& form = workshop.form;
  const NameSide side = sideOf(form);
  side.saveCheck.clicked.add([&form, sideOf] { showSaveList(sideOf(form)); });
  side.saveList.tickChanged.add([&workshop, &form, sideOf, otherOf](int index) {
    const NameSide ticked = sideOf(form);
    const bool last = index == ticked.saveList.count() - 1;
    if (last && ticked.saveList.item(index) == kDone) saveChosen(workshop, ticked, otherOf(form));
  });
}

}  // namespace

void wireSavingNames(Workshop& workshop) {
  wire(workshop, groupSide, materialSide);
  wire(workshop, materialSide, groupSide);
}

}  // namespace norvik::obj
