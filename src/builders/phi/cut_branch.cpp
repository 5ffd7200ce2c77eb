#include "builders/phi/cut_branch.h"

#include "builders/phi/phi_lister.h"
#include "front/stoppable_pass.h"
#include "text/columns.h"
#include "text/line_starts.h"
#include "text/rewrite_pass.h"

#include <algorithm>

namespace norvik::builders {

namespace {

constexpr std::string_view kScratch = "\\Lop.txt";

/// Takes a mesh in whole lines and writes it less the groups. Every line loses one leading blank.
class BranchCut {
 public:
  BranchCut(text::LineWriter& out, const std::vector<std::string>& names)
      : out_(out), names_(names) {}

  void add(std::string_view lines) {
    for (std::size_t at = 0; at < lines.size();) {
      const std::size_t next = text::findLineStart(lines, at, ' ', 'g');
      if (!removing_ && next > at) out_.lines(lines.substr(at, next - at));
      if (next == lines.size()) return;
      const std::size_t end = text::findLineEnd(lines, next);
      takeLine(lines.substr(next, end - next));
      at = text::behindLineEnd(lines, end);
    }
  }

 private:
  void takeLine(std::string_view line) {
    if (line.starts_with(' ')) line.remove_prefix(1);
    if (line.starts_with('g')) {
      // The whole rest of the line: one with several groups is never taken out.
      const std::string_view group = text::from(line, 3);
      removing_ = std::find(names_.begin(), names_.end(), group) != names_.end();
    }
    if (!removing_) out_.line(line);
  }

  text::LineWriter& out_;
  const std::vector<std::string>& names_;
  bool removing_ = false;
};

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
  front::runStoppable(session.front, [&] {
    text::RewritePass pass(session.disk, mesh, scratch);
    BranchCut cut(pass.out(), names);
    pass.in().handOnLines({}, [&cut](std::string_view lines) { cut.add(lines); });
    pass.finish();
  });
  session.hourglass(false);

  front::CommonDialog& dialog = opening.CommonDialog2;
  if (!dialog.save(session.front, session.disk.currentFolder(), mesh, {},
                   {"Save the mesh without the branch", front::kMeshFilter})) {
    return;
  }
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
