#include "text/line_reader.h"

#include "text/classic_errors.h"

#include <algorithm>
#include <cstring>

namespace norvik::text {

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

}  // namespace

LineReader::LineReader(const Disk& disk, std::string_view path)
    : LineReader(disk.openForReading(path)) {
  path_ = disk.inFull(path);
}

LineReader::LineReader(std::unique_ptr<HostFile> file)
    : file_(std::move(file)), buffer_(kBlockSize) {}

/// Reads more bytes behind the unread ones, which move to the buffer's front. False at the file's
/// end.
bool LineReader::refill() {
  if (fileEnded_) return false;
  wholeEnd_ = 0;
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    filePosition_ += begin_;
    end_ -= begin_;
    begin_ = 0;
  }
  forgetEnds();
  if (end_ == buffer_.size()) buffer_.resize(buffer_.size() * 2);
  std::size_t got = 0;
  const int error = file_->read(buffer_.data() + end_, buffer_.size() - end_, got);
  raise(error, path_, FileAct::reading);
  end_ += got;
  fileEnded_ = got == 0;
  return got > 0;
}

void LineReader::raisePastEnd() const {
  throw FileError(ErrorNumber::inputPastEnd, path_, FileAct::reading);
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

std::string_view LineReader::anyLine() {
  if (atEnd()) raisePastEnd();
  const std::size_t length = findLineEnd();
  // Passing a CR at the buffer's end may move the bytes: have its LF there first.
  if (begin_ + length + 1 >= end_) refill();
  const auto result = unread().substr(0, length);
  begin_ += length;
  passLineEnd();
  forgetEnds();
  atLineStart_ = true;
  return result;
}

void LineReader::skipBlanks() {
  while (!atEnd() && isBlank(buffer_[begin_])) ++begin_;
}

std::string_view LineReader::anyField() {
  if (atEnd()) raisePastEnd();
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
  forgetEnds();
  return result;
}

/// The whole lines among the unread bytes. A CR in the last byte does not count while its LF may
/// still be to come.
std::string_view LineReader::wholeLines() {
  if (wholeEnd_ == 0) {
    std::size_t end = end_;
    if (!fileEnded_ && end > 0) {
      --end;
      while (end > 0 && !isLineEnd(buffer_[end - 1])) --end;
      if (end > 0) end += lineEndSize(buffer_.data() + end - 1) - 1;
    }
    wholeEnd_ = end;
  }
  return unread().substr(0, std::max(wholeEnd_, begin_) - begin_);
}

std::uint64_t LineReader::skipLines(const LineFilter& filter) {
  std::uint64_t lines = 0;
  handOnLines(filter, [&lines](std::string_view passed) {
    lines += countLines(passed) + (isLineEnd(passed.back()) ? 0 : 1);
  });
  return lines;
}

void LineReader::passLines(const LineFilter& filter) {
  handOnLines(filter, [](std::string_view) {});
}

void LineReader::handOnLines(const LineFilter& filter, const Sink& sink) {
  while (atLineStart_ && !atEnd()) {
    const std::string_view block = wholeLines();
    if (block.empty()) {
      refill();
      continue;
    }
    const std::size_t hit = filter.find(block);
    std::size_t length = hit;
    if (hit < block.size()) {
      while (length > 0 && !isLineEnd(block[length - 1])) --length;
    }
    if (length > 0) sink(block.substr(0, length));
    begin_ += length;
    forgetEnds();
    if (hit < block.size()) break;
  }
}

void LineReader::handOnNext(std::uint64_t count, const Sink& sink) {
  while (count > 0 && !atEnd()) {
    const std::string_view block = wholeLines();
    if (block.empty()) {
      refill();
      continue;
    }
    const std::size_t length = text::endOfLines(block, count);
    sink(block.substr(0, length));
    begin_ += length;
    forgetEnds();
  }
}

}  // namespace norvik::text
