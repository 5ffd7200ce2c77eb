#include "text/line_writer.h"

#include "text/classic_errors.h"
#include "text/line_scan.h"

namespace norvik::text {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Takes the first line off a text, its ending included, and returns it without that.
std::string_view takeLine(std::string_view& lines) {
  const std::size_t end = findLineEnd(lines, 0);
  const auto line = lines.substr(0, end);
  const bool pair = lines.substr(end).starts_with(kLineEnd);
  lines.remove_prefix(std::min(end + (pair ? 2 : 1), lines.size()));
  return line;
}

bool areWrittenAsTheyAre(std::string_view lines) {
  return lines.ends_with('\n') && hasConventionalEndings(lines);
}

}  // namespace

LineWriter::LineWriter(Disk& disk, std::string_view path, Mode mode)
    : file_(mode == Mode::create ? disk.openForWriting(path) : disk.openForAppending(path)) {
  held_.reserve(kBlockSize);
}

LineWriter::~LineWriter() {
  if (file_ != nullptr) ignoringErrors([this] { flush(); });
}

void LineWriter::flush() {
  if (held_.empty()) return;
  const int error = file_->write(held_);
  held_.clear();
  raise(error);
}

void LineWriter::bytes(std::string_view bytes) {
  if (held_.size() + bytes.size() > kBlockSize) flush();
  if (bytes.size() < kBlockSize / 4) {
    held_.append(bytes);
  } else {
    // A long stretch goes from where it was read, without a copy in between.
    flush();
    raise(file_->write(bytes));
  }
}

void LineWriter::line(std::string_view text) {
  bytes(text);
  bytes(kLineEnd);
}

void LineWriter::line(std::string_view first, std::string_view second) {
  bytes(first);
  line(second);
}

void LineWriter::lines(std::string_view lines) {
  if (areWrittenAsTheyAre(lines)) return bytes(lines);
  while (!lines.empty()) line(takeLine(lines));
}

void LineWriter::linesThatHoldText(std::string_view lines) {
  if (areWrittenAsTheyAre(lines) && !hasEmptyLines(lines)) return bytes(lines);
  while (!lines.empty()) {
    const auto text = takeLine(lines);
    if (!text.empty()) line(text);
  }
}

void LineWriter::close() {
  flush();
  file_.reset();
}

}  // namespace norvik::text
