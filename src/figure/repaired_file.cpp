#include "figure/repaired_file.h"

#include "figure/line_ending_repair.h"
#include "text/byte_reader.h"
#include "text/columns.h"
#include "text/first_dot.h"
#include "text/line_writer.h"

namespace norvik::figure {

namespace {

constexpr std::size_t kExaminedBytes = 200;

/// Whether there are bytes of 0 near the beginning, which no text has.
bool isNoText(const text::Disk& disk, std::string_view path) {
  constexpr std::size_t kLookedAt = 8192;
  return text::ByteReader(disk, path).read(kLookedAt).find('\0') != std::string_view::npos;
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

bool hasConventionalStart(const text::Disk& disk, std::string_view path) {
  return text::holds(text::ByteReader(disk, path).read(kExaminedBytes), "\r\n");
}

std::string_view cautionOfRepair(const text::Disk& disk, std::string_view path) {
  if (!isNoText(disk, path)) return {};
  return "This is no text file: it holds bytes of 0. The repair would spoil it.";
}

std::string repairLineEnds(front::Session& session, const std::string& path) {
  const std::string scratchPath = text::throughFirstDot(path, "new");
  std::string backup = text::beforeFirstDot(path, text::raised(text::extension(path)) + ".bak");
  convert(session, path, scratchPath);
  swap(session.disk, path, scratchPath, backup);
  session.hourglass(false);
  return backup;
}

}  // namespace norvik::figure
