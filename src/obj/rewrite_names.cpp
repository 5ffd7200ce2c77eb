#include "obj/rewrite_names.h"

#include "front/stoppable_pass.h"
#include "obj/name_side.h"
#include "obj/pending_renames.h"
#include "obj/save_result.h"
#include "text/columns.h"
#include "text/rewrite_pass.h"

#include <string>

namespace norvik::obj {

namespace {

constexpr std::string_view kResult = "\\newobj.txt";
constexpr std::string_view kMerged = "\\newobj1.txt";

/// The renames of one side, and whether its last name was dropped.
class Renamer {
 public:
  explicit Renamer(const NameSide& side) : side_(side), renames_(side.renames.items()) {}

  bool dropping() const { return dropping_; }

  /// Gives a line of this side its new name. Any "NULL" in the line drops it.
  void take(std::string& line) {
    if (!isOf(side_, line)) return;
    if (const auto name = renames_.newName(nameOn(side_, line))) {
      line = std::string{side_.token}.append(*name);
    }
    dropping_ = text::holds(line, kDropsName);
  }

 private:
  const NameSide& side_;
  PendingRenames renames_;
  bool dropping_ = false;
};

/// The first pass: the new names, without what is dropped. Lines are read as fields.
void renameInto(front::FormOBJ& form, text::RewritePass& pass) {
  const NameSide groupControls = groupSide(form);
  const NameSide materialControls = materialSide(form);
  Renamer groups(groupControls);
  Renamer materials(materialControls);
  std::string line;
  while (!pass.in().atEnd()) {
    line = pass.in().field();
    if (text::begins(line, " ")) line.erase(0, 1);
    groups.take(line);
    materials.take(line);
    if (!groups.dropping() && !materials.dropping()) pass.out().line(line);
  }
  pass.finish();
}

/// The second pass: a group line that is the last one again goes.
void mergeInto(text::RewritePass& pass) {
  std::string last;
  while (!pass.in().atEnd()) {
    const std::string_view line = pass.in().field();
    if (text::begins(line, "g")) {
      if (line == last) continue;
      last = line;
    }
    pass.out().line(line);
  }
  pass.finish();
}

}  // namespace

void rewriteNames(Workshop& workshop) {
  front::Session& session = workshop.session;
  const std::string source = session.opening.LabelOBJFileName.caption();
  const std::string result = session.opening.inProgramFolder(kResult);
  const std::string merged = session.opening.inProgramFolder(kMerged);
  session.hourglass(true);
  front::runStoppable(session.front, [&] {
    {
      text::RewritePass pass(session.disk, source, result);
      renameInto(workshop.form, pass);
    }
    text::RewritePass pass(session.disk, result, merged);
    mergeInto(pass);
  });
  session.disk.replace(merged, result);
  session.hourglass(false);
  saveResult(session, result, source, {"Save the mesh with its new names as", front::kMeshFilter});
}

}  // namespace norvik::obj
