#include "channels/morph_merge.h"

#include "text/columns.h"
#include "text/line_reader.h"
#include "text/line_writer.h"

#include <functional>
#include <optional>

namespace norvik::channels {

namespace {

using text::anywhere;

/// An open that may fail without a word; the first use of what it should have opened fails instead.
template <typename Opened>
class LateFailure {
 public:
  explicit LateFailure(const std::function<std::unique_ptr<Opened>()>& open) {
    try {
      opened_ = open();
    } catch (const text::FileError& error) {
      error_ = error;
    }
  }
  Opened& get() {
    if (error_) throw text::FileError(*error_);
    return *opened_;
  }

 private:
  std::unique_ptr<Opened> opened_;
  std::optional<text::FileError> error_;
};

/// The pass over the destination.
class Merge {
 public:
  Merge(front::Session& session, CopyRun& run, text::LineWriter& out, text::LineReader& extract,
        text::LineReader& destination)
      : session_(session),
        run_(run),
        part_(partInView(session.opening.ListChannels)),
        out_(out),
        extract_(extract),
        in_(destination) {}

  void pass() {
    const std::string prefix = "actor " + part_.name;
    const text::LineFilter stops{text::atStart(prefix)};
    while (!in_.atEnd()) {
      in_.handOnLines(stops, [this](std::string_view lines) { out_.linesThatHoldText(lines); });
      if (in_.atEnd()) return;
      const std::string line = next();
      writeUnlessEmpty(text::begins(line, prefix) ? mergeActor(line) : line);
    }
  }

 private:
  std::string next() { return std::string{in_.line()}; }

  void writeUnlessEmpty(const std::string& line) {
    if (!line.empty()) out_.line(line);
  }

  /// Writes up to and including the first line that holds `token`.
  void copyThrough(std::string_view token) {
    const text::LineFilter stops{anywhere(token)};
    bool found = false;
    while (!found) {
      in_.handOnLines(stops, [this](std::string_view lines) { out_.lines(lines); });
      const auto line = in_.line();
      found = text::holds(line, token);
      out_.line(line);
    }
  }

  void copyThroughLine(const std::string& wanted) {
    bool found = false;
    while (!found) {
      in_.handOnLines({text::atStart(wanted)},
                      [this](std::string_view lines) { out_.lines(lines); });
      const auto line = in_.line();
      found = line == wanted;
      out_.line(line);
    }
  }

  /// Deals with an actor of the part and returns the line behind what it wrote.
  std::string mergeActor(const std::string& actorLine) {
    out_.line(actorLine);
    out_.line(in_.line());
    std::string line = next();
    // The storage section's actors have no name.
    if (!text::holds(line, "name")) return line;
    out_.line(line);
    copyThrough("channels");
    out_.line(in_.line());
    if (run_.linkMode) {
      insertLink();
    } else {
      insertEntry();
    }
    run_.inserted = true;
    line = next();
    return line == "     {" ? next() : line;
  }

  void insertEntry() {
    while (!extract_.atEnd()) out_.line(withFigureNumber(std::string{extract_.line()}));
  }

  /// A second actor of the name finds the extract at its end: nothing is searched for or inserted.
  void insertLink() {
    if (!extract_.atEnd()) copyThroughLine(run_.searchLine);
    copyThrough("interp");
    while (!extract_.atEnd()) out_.line(extract_.line());
  }

  std::string withFigureNumber(std::string line) {
    const auto colon = line.find(':');
    if (colon == std::string::npos || line.substr(colon + 1) == part_.figureNumber) return line;
    session_.front.messageBox(
        "Unexpected figure number in the source.  This will be fixed, but it is possible the morph "
        "will not work.",
        "Error!", front::kCritical);
    return line.substr(0, colon + 1) + part_.figureNumber;
  }

  front::Session& session_;
  CopyRun& run_;
  NamedPart part_;
  text::LineWriter& out_;
  text::LineReader& extract_;
  text::LineReader& in_;
};

}  // namespace

NamedPart partInView(const front::ListBox& list) {
  const auto text = text::from(list.item(0), 14);
  const auto colon = text.find(':');
  const bool numbered = colon != std::string_view::npos;
  return {std::string{text::trimmed(text.substr(0, colon))},
          std::string{numbered ? text.substr(colon + 1) : text}};
}

void mergeMorph(front::Session& session, CopyRun& run) {
  const std::string merged = session.opening.inProgramFolder(kMergedFile);
  const std::string extractFile = session.opening.inProgramFolder(kExtractFile);
  text::ignoringErrors([&] { session.disk.remove(merged); });

  text::Disk& disk = session.disk;
  // Emptied, should the delete have failed: a figure merged before must not stand in front.
  LateFailure<text::LineWriter> out(
      [&] { return std::make_unique<text::LineWriter>(disk, merged); });
  LateFailure<text::LineReader> extract(
      [&] { return std::make_unique<text::LineReader>(disk, extractFile); });
  LateFailure<text::LineReader> destination(
      [&] { return std::make_unique<text::LineReader>(disk, session.opening.DestPath); });
  session.hourglass(true);
  // Of several that failed the one that is used first tells.
  text::LineReader& read = destination.get();
  text::LineWriter& written = out.get();
  Merge(session, run, written, extract.get(), read).pass();
  written.close();
  text::ignoringErrors([&] { disk.remove(extractFile); });
}

}  // namespace norvik::channels
