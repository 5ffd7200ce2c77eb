#pragma once
// Reading on until the line on hand is the wanted one: the way in which tools that build a file
// out of a figure walk through it.

#include "text/line_filter.h"
#include "text/line_reader.h"
#include "text/line_writer.h"

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::text {

/// A reader that keeps the last line that it has read. A search tests the line on hand before it
/// reads, so a line that one search has found ends the next one as well if that wants it too. The
/// line on hand is empty at first, and stays when the file is opened again.
///
///     LineOnHand in(disk, figure, LineOnHand::Read::fields);
///     in.readUntil([](std::string_view line) { return holds(line, "figureResFile"); },
///                  {"figureResFile"});
///     use(in.line());
///
/// A search may be told texts of which each wanted line holds at least one: it then passes over
/// the other lines at the speed of a byte search.
class LineOnHand {
 public:
  enum class Read { lines, fields };
  using Texts = std::initializer_list<std::string_view>;

  /// Throws what Disk::openForReading throws.
  LineOnHand(const Disk& disk, std::string_view path, Read read);

  /// Begins at the start of the file again. Throws as the constructor does; then nothing changes.
  void reopen();
  /// Goes on behind that many bytes of the file. An error of a later read names no file.
  void reopenAt(std::uint64_t position);
  /// Bytes from the start of the file to the next read; not behind reopenAt.
  std::uint64_t position() const { return in_.position(); }

  bool atEnd() { return in_.atEnd(); }
  const std::string& line() const { return line_; }
  void setLine(std::string_view line) { line_ = line; }

  /// Reads the next line or field; throws FileError inputPastEnd (62) at the end of the file.
  const std::string& read();

  /// Reads until the line on hand is `wanted`; throws FileError inputPastEnd if none is.
  template <typename Wanted>
  const std::string& readUntil(Wanted&& wanted, Texts texts = {}) {
    if (!searchUntil(wanted, texts)) read();
    return line_;
  }

  /// The same, but at the end of the file the last line stays on hand. Whether it is `wanted`.
  template <typename Wanted>
  bool searchUntil(Wanted&& wanted, Texts texts = {}) {
    const std::optional<LineFilter> filter = filterFor(texts);
    while (!wanted(std::string_view{line_})) {
      if (filter) pass(*filter, nullptr);
      if (atEnd()) return false;
      read();
    }
    return true;
  }

  /// Reads whole lines up to the next one that is `wanted`, and writes those in front of it. The
  /// line on hand is neither tested nor written; the one that was found is on hand and not yet
  /// written. False at the end of the file, where the last line was written and is on hand.
  template <typename Wanted>
  bool copyTo(LineWriter& out, Wanted&& wanted, Texts texts = {}) {
    const std::optional<LineFilter> filter = filterFor(texts);
    for (;;) {
      if (filter) pass(*filter, &out);
      if (atEnd()) return false;
      if (wanted(std::string_view{read()})) return true;
      out.line(line_);
    }
  }

  /// Writes all whole lines that are left.
  void copyRest(LineWriter& out);

 private:
  std::optional<LineFilter> filterFor(Texts texts) const;
  void pass(const LineFilter& filter, LineWriter* out);

  const Disk& disk_;
  std::string path_;
  Read kind_;
  LineReader in_;
  std::string line_;
};

}  // namespace norvik::text
