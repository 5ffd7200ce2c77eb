#include "builders/scenes/figure_sections.h"

#include "text/columns.h"
#include "text/line_filter.h"
#include "text/line_starts.h"

#include <vector>

namespace norvik::builders {

namespace {

/// Whether a line that begins so may be a section's first or the file's own bracket.
bool isAtMargin(char first) {
  return first != ' ' && first != '\t' && !text::isLineEnd(first);
}

bool isBrace(char first) {
  return first == '{' || first == '}';
}

/// The offset of the first line from `start` on that begins at the margin, or the text's size.
/// `start` is that of a line. Hardly any line does, so the blocks are looked at by chunks.
std::size_t findMarginLine(std::string_view lines, std::size_t start) {
  std::size_t at = start;
  bool lineStart = true;
  for (; at + text::ByteChunk::kSize <= lines.size(); at += text::ByteChunk::kSize) {
    const text::ByteChunk chunk(lines.data() + at);
    const std::uint64_t ends = chunk.matching('\r', '\n');
    const std::uint64_t starts = ends << 1U | (lineStart ? 1U : 0U);
    const std::uint64_t hits = starts & ~ends & ~chunk.matching(' ', '\t');
    if (hits != 0) return at + text::firstOf(hits);
    lineStart = text::isLineEnd(lines[at + text::ByteChunk::kSize - 1]);
  }
  for (; at < lines.size(); ++at) {
    if (lineStart && isAtMargin(lines[at])) return at;
    lineStart = text::isLineEnd(lines[at]);
  }
  return lines.size();
}

}  // namespace

void FigureSections::add(std::string_view lines) {
  for (std::size_t at = 0; at < lines.size();) {
    const std::size_t margin = findMarginLine(lines, at);
    addText(lines.substr(at, margin - at));
    if (margin == lines.size()) return;
    const std::size_t end = text::findLineEnd(lines, margin);
    enterLine(lines.substr(margin, end - margin));
    // Of a CR LF the LF is left: an empty line that must not be written.
    at = text::behindLineEnd(lines, end);
  }
}

void FigureSections::enterLine(std::string_view line) {
  if (!isBrace(line.front())) {
    kept_ = enterSection(line);
    count(line);
  }
  if (kept_ || line.front() == '}') out_.line(line);
  if (kept_ && inSection_ && text::holds(line, "setGeom")) endsFigure_ = true;
}

bool FigureSections::enterSection(std::string_view line) {
  if (endsFigure_) range_ = Range::behindFigure;
  inSection_ = true;
  endsFigure_ = false;
  const bool settingsBegin = text::begins(line, "doc");
  if (range_ != Range::settings && settingsBegin) range_ = Range::settings;
  const bool universe = line == "actor UNIVERSE";
  if (range_ == Range::settings && universe) range_ = Range::figure;
  if (range_ != Range::figure || universe) return false;
  if (text::begins(line, "figureResFile")) return true;
  return !text::begins(line, "prop GROUND") && !text::holds(line, "LIGHT") &&
         !text::holds(line, "CAMERA");
}

void FigureSections::count(std::string_view line) {
  if (line == "figure") ++counts_.figures;
  if (kept_) return;
  if (text::holds(line, "LIGHT")) {
    ++counts_.lights;
  } else if (text::holds(line, "CAMERA")) {
    ++counts_.cameras;
  } else if (text::begins(line, "prop GROUND")) {
    ++counts_.grounds;
  } else if (text::begins(line, "doc") || line == "actor UNIVERSE") {
    ++counts_.settings;
  } else {
    ++counts_.others;
  }
}

std::string FigureSections::note() const {
  std::vector<std::string> parts;
  const auto add = [&parts](int number, std::string_view one, std::string_view more) {
    if (number == 1) parts.emplace_back(one);
    if (number > 1) parts.push_back(std::to_string(number) + " " + std::string{more});
  };
  add(counts_.lights, "1 light", "lights");
  add(counts_.cameras, "1 camera", "cameras");
  if (counts_.grounds > 0) parts.emplace_back("the ground");
  if (counts_.settings > 0) parts.emplace_back("the scene's settings");
  add(counts_.others, "1 other section", "other sections");
  std::string note;
  for (const std::string& part : parts) note += (note.empty() ? "Left out: " : ", ") + part;
  if (counts_.figures > 1) {
    note += (note.empty() ? "" : ". ") + std::string{"The scene has "} +
            std::to_string(counts_.figures) + " figures: look the result through";
  }
  return note;
}

void FigureSections::addText(std::string_view lines) {
  if (!kept_ || lines.empty()) return;
  out_.lines(lines);
  static const text::LineFilter figureEnd{text::anywhere("setGeom")};
  if (inSection_ && !endsFigure_) endsFigure_ = figureEnd.find(lines) < lines.size();
}

}  // namespace norvik::builders
