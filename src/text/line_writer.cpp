#include "text/line_writer.h"

#include "text/classic_errors.h"
#include "text/line_scan.h"

#include <utility>

namespace norvik::text {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Calls `use` with each line of a text, without its ending.
template <typename Use>
void forEachLine(std::string_view lines, Use use) {
  std::size_t begin = 0;
  const auto endAt = [&](std::size_t end) {
    if (end < begin) return;  // the LF of a CR LF
    use(lines.substr(begin, end - begin));
    const bool pair = end + 1 < lines.size() && lines[end] == '\r' && lines[end + 1] == '\n';
    begin = end + (pair ? 2 : 1);
  };
  visitEach(lines, 0, endAt, '\r', '\n');
  if (begin < lines.size()) use(lines.substr(begin));
}

bool areWrittenAsTheyAre(std::string_view lines) {
  return lines.ends_with('\n') && hasConventionalEndings(lines);
}

}  // namespace

LineWriter::LineWriter(Disk& disk, std::string_view path, Mode mode)
    : path_(disk.inFull(path)),
      file_(mode == Mode::create ? disk.openForWriting(path) : disk.openForAppending(path)),
      held_(kBlockSize) {}

LineWriter::~LineWriter() {
  if (file_ != nullptr) ignoringErrors([this] { flush(); });
}

void LineWriter::write(std::string_view bytes) {
  raise(file_->write(bytes), path_, FileAct::writing);
}

void LineWriter::flush() {
  const std::size_t size = std::exchange(size_, 0);
  if (size > 0) write({held_.data(), size});
}

/// Whole pages of the file are written, but for its end: the host takes a page up again for each
/// write that begins within it.
void LineWriter::bytes(std::string_view bytes) {
  constexpr std::size_t kPage = 4096;
  const auto putFirst = [&](std::size_t count) {
    put(bytes.substr(0, count));
    bytes.remove_prefix(count);
  };
  if (bytes.size() >= kBlockSize / 4) {
    // A long stretch goes from where it was read, without a copy in between.
    putFirst((kPage - size_ % kPage) % kPage);
    flush();
    const std::string_view pages = bytes.substr(0, bytes.size() - bytes.size() % kPage);
    write(pages);
    bytes.remove_prefix(pages.size());
  } else if (bytes.size() > free()) {
    putFirst(free());
    flush();
  }
  put(bytes);
}

void LineWriter::longLine(std::string_view text) {
  bytes(text);
  bytes(kLineEnd);
}

void LineWriter::line(std::string_view first, std::string_view second) {
  if (!first.empty()) bytes(first);
  line(second);
}

void LineWriter::lines(std::string_view lines) {
  if (areWrittenAsTheyAre(lines)) return bytes(lines);
  forEachLine(lines, [this](std::string_view text) { line(text); });
}

void LineWriter::linesThatHoldText(std::string_view lines) {
  if (areWrittenAsTheyAre(lines) && !hasEmptyLines(lines)) return bytes(lines);
  forEachLine(lines, [this](std::string_view text) {
    if (!text.empty()) line(text);
  });
}

void LineWriter::close() {
  flush();
  file_.reset();
}

}  // namespace norvik::text
