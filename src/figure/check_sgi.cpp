#include "figure/check_sgi.h"

#include "figure/repaired_file.h"

namespace norvik::figure {

namespace {

bool mayRepair(front::Session& session, const std::string& path) {
  const front::Caution caution(session, cautionOfRepair(session.disk, path));
  return session.front.messageBox(
             "Norvik may not be able to process this file, due to its unconventional construction. "
             " Click OK to backup and continue, or Cancel.",
             "Sorry!", front::kOkCancel) != front::Answer::cancel;
}

}  // namespace

void CheckSGI(front::Session& session, std::string& path) {
  if (path.empty()) path = session.opening.LabelFileName.caption();
  if (hasConventionalStart(session.disk, path)) return;

  session.front.beep();
  if (!mayRepair(session, path)) {
    session.opening.OpenCancelled = true;
    return;
  }
  session.front.messageBox(
      "Unconventional line ending! Please wait while it is fixed -- you will only need to do this "
      "once, and it will not affect the file for Poser.",
      "Note!", front::kOk);

  const std::string backup = repairLineEnds(session, path);
  session.front.messageBox(
      path + " converted, original saved as " + backup + "  Norvik will now continue.", "Success!",
      front::kOk);
}

}  // namespace norvik::figure
