#include "figure/check_sgi.h"

#include "figure/line_ending_repair.h"
#include "text/byte_reader.h"
#include "text/columns.h"
#include "text/first_dot.h"
#include "text/line_writer.h"

namespace norvik::figure {

namespace {

constexpr std::size_t kExaminedBytes = 200;

/// Whether there are bytes of 0 near the beginning, which no text has.
bool isNoText(const text::Disk& disk, const std::string& path) {
  constexpr std::size_t kLookedAt = 8192;
  return text::ByteReader(disk, path).read(kLookedAt).find('\0') != std::string_view::npos;
}

bool isConventional(const text::Disk& disk, const std::string& path) {
  return text::holds(text::ByteReader(disk, path).read(kExaminedBytes), "\r\n");
}

bool mayRepair(front::Session& session, const std::string& path) {
  const front::Caution caution(
      session, isNoText(session.disk, path)
                   ? "This is no text file: it holds bytes of 0. The repair would spoil it."
                   : "");
  return session.front.messageBox(
             "Norvik may not be able to process this file, due to its unconventional construction. "
             " Click OK to backup and continue, or Cancel.",
             "Sorry!", front::kOkCancel) != front::Answer::cancel;
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
  if (!mayRepair(session, path)) {
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
