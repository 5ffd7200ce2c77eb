#include "figure/check_sgi.h"

#include "figure/line_ending_repair.h"
#include "text/byte_reader.h"
#include "text/columns.h"
#include "text/first_dot.h"
#include "text/line_writer.h"

namespace norvik::figure {

namespace {

constexpr std::size_t kExaminedBytes = 200;

bool isConventional(const text::Disk& disk, const std::string& path) {
  return text::holds(text::ByteReader(disk, path).read(kExaminedBytes), "\r\n");
}

void convert(front::Session& session, const std::string& path, const std::string& scratchPath) {
  text::ignoringErrors([&] { session.disk.remove(scratchPath); });
  text::ByteReader source(session.disk, path);
  text::LineWriter scratch(session.disk, scratchPath);
  session.hourglass(true);
  LineEndingRepair(source, scratch);
  scratch.close();
}

/// Whatever fails, a whole figure stands under the name: while there is no backup, the original.
void swap(text::Disk& disk, const std::string& path, const std::string& scratchPath,
          const std::string& backup) {
  text::ignoringErrors([&] { disk.remove(backup); });
  text::ignoringErrors([&] { disk.replaceKeeping(scratchPath, path, backup); });
}

}  // namespace

void CheckSGI(front::Session& session, std::string& path) {
  if (path.empty()) path = session.opening.LabelFileName.caption();
  if (isConventional(session.disk, path)) return;

  session.front.beep();
  const front::Answer answer = session.front.messageBox(
      "Norvik may not be able to process this file, due to its unconventional construction.  Click "
      "OK "
      "to backup and continue, or Cancel.",
      "Sorry!", front::kOkCancel);
  if (answer == front::Answer::cancel) {
    session.opening.OpenCancelled = true;
    return;
  }
  session.front.messageBox(
      "Unconventional line ending! Please wait while it is fixed -- you will only need to do this "
      "once, and it will not affect the file for Poser.",
      "Note!", front::kOk);

  const std::string scratchPath = text::throughFirstDot(path, "new");
  const std::string backup =
      text::beforeFirstDot(path, text::raised(text::extension(path)) + ".bak");
  convert(session, path, scratchPath);
  swap(session.disk, path, scratchPath, backup);
  session.hourglass(false);
  session.front.messageBox(
      path + " converted, original saved as " + backup + "  Norvik will now continue.", "Success!",
      front::kOk);
}

}  // namespace norvik::figure
