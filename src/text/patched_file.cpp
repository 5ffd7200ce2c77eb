#include "text/patched_file.h"

#include "text/classic_errors.h"

namespace norvik::text {

PatchedFile::PatchedFile(Disk& disk, std::string_view path)
    : path_(disk.inFull(path)), file_(disk.openForUpdating(path)) {}

char PatchedFile::at(std::uint64_t offset) {
  char byte = 0;
  std::size_t got = 0;
  raise(file_->seek(offset), path_, FileAct::reading);
  raise(file_->read(&byte, 1, got), path_, FileAct::reading);
  if (got == 0) throw FileError(ErrorNumber::inputPastEnd, path_, FileAct::reading);
  return byte;
}

void PatchedFile::put(std::uint64_t offset, char byte) {
  raise(file_->seek(offset), path_, FileAct::writing);
  raise(file_->write({&byte, 1}), path_, FileAct::writing);
}

}  // namespace norvik::text
