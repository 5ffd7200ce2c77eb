#include "editor/text_file.h"

#include "text/byte_reader.h"
#include "text/line_writer.h"
#include "text/rewrite_pass.h"

namespace norvik::editor {

namespace {

constexpr std::string_view kScratch = "\\Edit.tmp";

void writeScratch(text::Disk& disk, const text::LongText& content, const std::string& scratch) {
  text::LineWriter out(disk, scratch);
  content.visitFrom(0, [&out](std::string_view bytes) {
    out.bytes(bytes);
    return true;
  });
  out.close();
}

}  // namespace

text::LongText readText(const text::Disk& disk, std::string_view path) {
  constexpr std::size_t kBlock = std::size_t{1} << 20U;
  text::ByteReader file(disk, path);
  text::LongText content;
  for (std::string_view bytes = file.read(kBlock); !bytes.empty(); bytes = file.read(kBlock)) {
    content.append(bytes);
  }
  return content;
}

void writeText(front::Session& session, const text::LongText& content, const std::string& path) {
  text::Disk& disk = session.disk;
  if (disk.exists(path) && disk.isReadOnly(path)) {
    throw text::FileError(text::ErrorNumber::pathFileAccess, path, text::FileAct::writing);
  }
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  text::keepApart(disk, path, scratch);
  text::ignoringErrors([&] { disk.remove(scratch); });
  try {
    writeScratch(disk, content, scratch);
    disk.replace(scratch, path);
  } catch (const text::FileError&) {
    text::ignoringErrors([&] { disk.remove(scratch); });
    throw;
  }
}

}  // namespace norvik::editor
