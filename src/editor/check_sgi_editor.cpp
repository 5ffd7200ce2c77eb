#include "editor/check_sgi_editor.h"

#include "figure/repaired_file.h"
#include "text/columns.h"

#include <algorithm>
#include <array>

namespace norvik::editor {

namespace {

bool isKnown(std::string_view extension) {
  constexpr auto kKnown =
      std::to_array<std::string_view>({"cr2", "pz3", "obj", "hr2", "pp2", "pz2", "fc2", "mtl"});
  return std::find(kKnown.begin(), kKnown.end(), extension) != kKnown.end();
}

bool mayRepair(front::Session& session, const std::string& path) {
  const front::Caution caution(session, figure::cautionOfRepair(session.disk, path));
  return session.front.messageBox(
             "Unconventional line ending! Would you like to have it fixed? You will only need to "
             "do this once, and it will not affect the file for Poser.",
             "Note!", front::kYesNo) == front::Answer::yes;
}

}  // namespace

void CheckSGIEditor(front::Session& session, const std::string& path) {
  if (figure::hasConventionalStart(session.disk, path)) return;
  if (!isKnown(text::extension(path)) || !mayRepair(session, path)) return;
  const std::string backup = figure::repairLineEnds(session, path);
  session.front.messageBox(
      path + " converted, backup saved as " + backup + ".  The Editor will now load the file.",
      "Success!", front::kOk);
}

}  // namespace norvik::editor
