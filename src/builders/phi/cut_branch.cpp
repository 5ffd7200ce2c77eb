#include "builders/phi/cut_branch.h"

#include "builders/phi/phi_lister.h"
#include "text/columns.h"
#include "text/rewrite_pass.h"

#include <algorithm>

namespace norvik::builders {

namespace {

constexpr std::string_view kScratch = "\\Lop.txt";

/// Writes the mesh less the groups. Every line loses one leading blank.
void writeOthers(text::RewritePass& pass, const std::vector<std::string>& names) {
  static const text::LineFilter looked{text::atStart(" "), text::atStart("g")};
  bool removing = false;
  for (;;) {
    if (removing) {
      pass.in().passLines(looked);
    } else {
      pass.copyLines(looked);
    }
    if (pass.in().atEnd()) return;
    std::string_view line = pass.in().line();
    if (line.starts_with(' ')) line.remove_prefix(1);
    if (line.starts_with('g')) {
      // The whole rest of the line: one with several groups is never taken out.
      const std::string_view group = text::from(line, 3);
      removing = std::find(names.begin(), names.end(), group) != names.end();
    }
    if (!removing) pass.out().line(line);
  }
}

void store(front::Session& session, const std::string& scratch, const std::string& target) {
  const std::string onDisk = session.disk.nameOnDisk(target);
  if (session.disk.currentFolder() + "\\" + onDisk == target) {
    session.disk.replace(scratch, target);
  } else {
    session.disk.rename(scratch, target);
  }
}

void cutBranch(front::Session& session, FormTree& form) {
  front::Opening& opening = session.opening;
  const std::vector<std::string> names = branchNames(form.ListPhi);
  const std::string mesh = opening.LabelOBJFileName.caption();
  const std::string scratch = opening.inProgramFolder(kScratch);
  session.hourglass(true);
  text::RewritePass pass(session.disk, mesh, scratch);
  writeOthers(pass, names);
  pass.finish();
  session.hourglass(false);

  front::CommonDialog& dialog = opening.CommonDialog2;
  if (!dialog.save(session.front, session.disk.currentFolder(), mesh, {},
                   {"Save the mesh without the branch", front::kMeshFilter}))
    return;
  text::ignoringErrors([&] { store(session, scratch, dialog.fileName()); });
  opening.LabelOBJFileName.setCaption(dialog.fileName());
  session.unload(form);
}

}  // namespace

std::vector<std::string> branchNames(const front::ListBox& list) {
  const int selected = list.index();
  const TreeItem first = treeItem(list.item(selected));
  std::vector<std::string> names{first.name};
  // Beyond the last item stands an empty one, of depth 0.
  for (int i = selected + 1;; ++i) {
    TreeItem next = treeItem(list.item(i));
    if (next.depth <= first.depth) return names;
    names.push_back(std::move(next.name));
  }
}

void wireCutBranch(front::Session& session, FormTree& form) {
  form.CommandGo.clicked.add([&session, &form] { cutBranch(session, form); });
}

}  // namespace norvik::builders
