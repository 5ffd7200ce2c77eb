#include "text/line_reader.h"

#include "text/classic_errors.h"
#include "text/line_scan.h"

#include <algorithm>
#include <cstring>

namespace norvik::text {

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t';
}
bool isLineEnd(char c) {
  return c == '\r' || c == '\n';
}

}  // namespace

LineReader::LineReader(const Disk& disk, std::string_view path)
    : LineReader(disk.openForReading(path)) {}

LineReader::LineReader(std::unique_ptr<HostFile> file)
    : file_(std::move(file)), buffer_(kBlockSize) {}

/// Reads more bytes behind the unread ones, which move to the buffer's front. False at the file's
/// end.
bool LineReader::refill() {
  if (fileEnded_) return false;
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    filePosition_ += begin_;
    end_ -= begin_;
    begin_ = 0;
  }
  if (end_ == buffer_.size()) buffer_.resize(buffer_.size() * 2);
  std::size_t got = 0;
  raise(file_->read(buffer_.data() + end_, buffer_.size() - end_, got));
  end_ += got;
  fileEnded_ = got == 0;
  return got > 0;
}

bool LineReader::atEnd() {
  return begin_ == end_ && !refill();
}

/// The offset of the next line end among the unread bytes, or their number when the last line has
/// none.
std::size_t LineReader::findLineEnd() {
  std::size_t searched = 0;
  for (;;) {
    searched = text::findLineEnd(unread(), searched);
    if (searched < unread().size() || !refill()) return searched;
  }
}

void LineReader::passLineEnd() {
  if (atEnd()) return;
  if (buffer_[begin_] == '\r') {
    if (begin_ + 1 == end_) refill();
    ++begin_;
    if (begin_ < end_ && buffer_[begin_] == '\n') ++begin_;
  } else if (buffer_[begin_] == '\n') {
    ++begin_;
  }
}

std::string_view LineReader::line() {
  if (atEnd()) throw FileError(ErrorNumber::inputPastEnd);
  const std::size_t length = findLineEnd();
  // Passing a CR at the buffer's end may move the bytes: have its LF there first.
  if (begin_ + length + 1 >= end_) refill();
  const auto result = unread().substr(0, length);
  begin_ += length;
  passLineEnd();
  atLineStart_ = true;
  return result;
}

void LineReader::skipBlanks() {
  while (!atEnd() && isBlank(buffer_[begin_])) ++begin_;
}

std::string_view LineReader::field() {
  if (atEnd()) throw FileError(ErrorNumber::inputPastEnd);
  skipBlanks();
  const bool quoted = !atEnd() && buffer_[begin_] == '"';
  if (quoted) ++begin_;

  std::size_t length = 0;
  const auto ends = [&](char c) { return quoted ? c == '"' : c == ',' || isLineEnd(c); };
  for (;;) {
    const std::string_view bytes = unread();
    while (length < bytes.size() && !ends(bytes[length])) ++length;
    if (length < bytes.size() || !refill()) break;
  }
  // What stands behind the field is passed over without moving the bytes under the result.
  std::size_t behind = length;
  const auto has = [&](std::size_t offset) {
    while (offset >= unread().size()) {
      if (!refill()) return false;
    }
    return true;
  };
  if (quoted && has(behind)) {
    std::size_t next = ++behind;
    while (has(next) && isBlank(unread()[next])) ++next;
    if (!has(next) || unread()[next] == ',' || isLineEnd(unread()[next])) behind = next;
  }
  atLineStart_ = false;
  if (has(behind)) {
    const char c = unread()[behind];
    if (isLineEnd(c)) {
      atLineStart_ = true;
      const bool pair = c == '\r' && has(behind + 1) && unread()[behind + 1] == '\n';
      behind += pair ? 2 : 1;
    } else if (c == ',') {
      ++behind;
    }
  }
  const auto result = unread().substr(0, length);
  begin_ += behind;
  return result;
}

/// The length of the whole lines among the unread bytes. A CR in the last byte does not count while
/// its LF may still be to come.
std::size_t LineReader::wholeLines() const {
  const std::string_view bytes = unread();
  if (fileEnded_) return bytes.size();
  if (bytes.size() < 2) return 0;
  const auto lastEnd = bytes.find_last_of("\r\n", bytes.size() - 2);
  if (lastEnd == std::string_view::npos) return 0;
  const bool pair = bytes[lastEnd] == '\r' && bytes[lastEnd + 1] == '\n';
  return lastEnd + (pair ? 2 : 1);
}

std::uint64_t LineReader::skipLines(const LineFilter& filter) {
  std::uint64_t lines = 0;
  handOnLines(filter, [&lines](std::string_view passed) {
    lines += countLines(passed) + (isLineEnd(passed.back()) ? 0 : 1);
  });
  return lines;
}

void LineReader::handOnLines(const LineFilter& filter, const Sink& sink) {
  while (atLineStart_ && !atEnd()) {
    const std::string_view block = unread().substr(0, wholeLines());
    if (block.empty()) {
      refill();
      continue;
    }
    const std::size_t hit = filter.find(block);
    std::size_t length = hit;
    if (hit < block.size()) {
      const auto lastEnd = hit == 0 ? std::string_view::npos : block.find_last_of("\r\n", hit - 1);
      length = lastEnd == std::string_view::npos ? 0 : lastEnd + 1;
    }
    if (length > 0) sink(block.substr(0, length));
    begin_ += length;
    if (hit < block.size()) break;
  }
}

}  // namespace norvik::text
