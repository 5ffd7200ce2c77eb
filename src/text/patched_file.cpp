#include "text/patched_file.h"

#include "text/classic_errors.h"

namespace norvik::text {

PatchedFile::PatchedFile(Disk& disk, std::string_view path) : file_(disk.openForUpdating(path)) {}

char PatchedFile::at(std::uint64_t offset) {
  char byte = 0;
  std::size_t got = 0;
  raise(file_->seek(offset));
  raise(file_->read(&byte, 1, got));
  if (got == 0) throw FileError(ErrorNumber::inputPastEnd);
  return byte;
}

void PatchedFile::put(std::uint64_t offset, char byte) {
  raise(file_->seek(offset));
  raise(file_->write({&byte, 1}));
}

}  // namespace norvik::text
