#include "text/record_file.h"

#include "text/classic_errors.h"
#include "text/columns.h"

namespace norvik::text {

RecordFile::RecordFile(Disk& disk, std::string_view path, std::size_t recordLength)
    : path_(disk.inFull(path)), file_(disk.openForUpdating(path)), recordLength_(recordLength) {}

RecordFile::~RecordFile() {
  if (file_ != nullptr) ignoringErrors([this] { flush(); });
}

void RecordFile::flush() {
  if (held_.empty()) return;
  int error = file_->seek(offsetOf(heldFrom_));
  if (error == 0) error = file_->write(held_);
  held_.clear();
  raise(error, path_, FileAct::writing);
}

void RecordFile::put(std::uint64_t number, std::string_view text) {
  const std::uint64_t next = heldFrom_ + held_.size() / recordLength_;
  if (held_.size() + recordLength_ > kBlockSize || number != next) flush();
  if (held_.empty()) heldFrom_ = number;
  const auto kept = leftmost(text, recordLength_);
  held_.append(kept).append(recordLength_ - kept.size(), ' ');
}

std::string_view RecordFile::get(std::uint64_t number) {
  flush();
  const auto pastEnd = [this] {
    return FileError(ErrorNumber::inputPastEnd, path_, FileAct::reading);
  };
  if (number == 0) throw pastEnd();
  record_.resize(recordLength_);
  raise(file_->seek(offsetOf(number)), path_, FileAct::reading);
  for (std::size_t filled = 0; filled < recordLength_;) {
    std::size_t got = 0;
    const int error = file_->read(record_.data() + filled, recordLength_ - filled, got);
    raise(error, path_, FileAct::reading);
    if (got == 0) throw pastEnd();
    filled += got;
  }
  return record_;
}

std::uint64_t RecordFile::count() {
  flush();
  std::uint64_t bytes = 0;
  raise(file_->size(bytes), path_, FileAct::reading);
  return bytes / recordLength_;
}

void RecordFile::close() {
  flush();
  // The host may still be writing; its answer says whether it could.
  std::uint64_t bytes = 0;
  raise(file_->size(bytes), path_, FileAct::writing);
  file_.reset();
}

}  // namespace norvik::text
