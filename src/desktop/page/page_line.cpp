#include "desktop/page/page_line.h"

#include "desktop/words.h"

#include <QList>

#include <algorithm>
#include <cmath>

namespace norvik::desktop {

namespace {

constexpr char32_t kNoGlyph = 0xB7;

bool isPlain(char c) {
  return c >= ' ' && c < 0x7F;
}

/// Bytes that have no picture are seen as a dot.
char32_t seen(char32_t letter) {
  const bool control = letter < ' ' || (letter >= 0x7F && letter < 0xA0);
  return control && letter != '\t' ? kNoGlyph : letter;
}

std::uint32_t bytesOf(char32_t letter) {
  constexpr char32_t kOneByte = 0x80;
  constexpr char32_t kTwoBytes = 0x800;
  constexpr char32_t kThreeBytes = 0x10000;
  if (letter < kOneByte) return 1;
  if (letter < kTwoBytes) return 2;
  return letter < kThreeBytes ? 3 : 4;
}

}  // namespace

PageLine::PageLine(const text::LongText& content, text::LongText::Line line, const IsWide& isWide)
    : content_(content), line_(line) {
  plain_ = size() > kLongest;
  if (plain_) return;
  const std::string bytes = content.slice(line.start, size());
  plain_ = std::all_of(bytes.begin(), bytes.end(), isPlain);
  if (!plain_) decode(bytes, isWide);
}

void PageLine::decode(const std::string& bytes, const IsWide& isWide) {
  const QString text = shown(bytes);
  const bool single = static_cast<std::size_t>(text.size()) == bytes.size();
  std::uint32_t offset = 0;
  std::uint32_t column = 0;
  const auto letters = text.toUcs4();
  cells_.reserve(static_cast<std::size_t>(letters.size()) + 1);
  for (const uint number : letters) {
    const auto letter = static_cast<char32_t>(number);
    cells_.push_back({offset, column, seen(letter)});
    offset += single ? 1 : bytesOf(letter);
    if (letter == '\t') {
      column += kTab - column % kTab;
    } else {
      column += letter >= 0x80 && isWide(letter) ? 2 : 1;
    }
  }
  cells_.push_back({static_cast<std::uint32_t>(bytes.size()), column, 0});
}

std::int64_t PageLine::columnOf(std::size_t offset) const {
  if (plain_) return static_cast<std::int64_t>(std::min(offset, size()));
  const auto behind =
      std::upper_bound(cells_.begin(), cells_.end(), offset,
                       [](std::size_t place, const Cell& cell) { return place < cell.offset; });
  return behind == cells_.begin() ? 0 : std::prev(behind)->column;
}

std::size_t PageLine::offsetAt(double column) const {
  if (column <= 0) return 0;
  if (plain_) {
    const auto nearest = static_cast<std::size_t>(std::lround(std::min(column, 2e9)));
    return std::min(nearest, size());
  }
  const auto behind = std::find_if(cells_.begin(), cells_.end(), [column](const Cell& cell) {
    return static_cast<double>(cell.column) > column;
  });
  if (behind == cells_.end()) return cells_.back().offset;
  if (behind == cells_.begin()) return 0;
  const Cell& left = *std::prev(behind);
  const double middle = (static_cast<double>(left.column) + behind->column) / 2;
  return column < middle ? left.offset : behind->offset;
}

std::size_t PageLine::next(std::size_t offset) const {
  if (plain_) return std::min(offset + 1, size());
  const auto behind =
      std::upper_bound(cells_.begin(), cells_.end(), offset,
                       [](std::size_t place, const Cell& cell) { return place < cell.offset; });
  return behind == cells_.end() ? size() : behind->offset;
}

std::size_t PageLine::previous(std::size_t offset) const {
  if (plain_) return offset == 0 ? 0 : std::min(offset, size()) - 1;
  const auto at =
      std::lower_bound(cells_.begin(), cells_.end(), offset,
                       [](const Cell& cell, std::size_t place) { return cell.offset < place; });
  return at == cells_.begin() ? 0 : std::prev(at)->offset;
}

std::vector<PageLine::Run> PageLine::plainRuns(std::int64_t from, std::int64_t to) const {
  const auto first = static_cast<std::size_t>(std::max<std::int64_t>(from, 0));
  if (first >= size()) return {};
  const std::size_t count = std::min(static_cast<std::size_t>(to) - first, size() - first);
  QString letters =
      QString::fromLatin1(QByteArray::fromStdString(content_.slice(line_.start + first, count)));
  for (QChar& letter : letters) letter = QChar(static_cast<char16_t>(seen(letter.unicode())));
  letters.replace(QLatin1Char('\t'), QLatin1Char(' '));
  return {{static_cast<std::int64_t>(first), letters}};
}

std::vector<PageLine::Run> PageLine::runs(std::int64_t from, std::int64_t to) const {
  if (to <= from) return {};
  if (plain_) return plainRuns(from, to);
  std::vector<Run> result;
  std::int64_t next = -1;  // the column at which a letter joins the last run
  for (const Cell& cell : cells_) {
    if (cell.column >= to || cell.letter == 0) break;
    if (cell.letter == '\t' || cell.column + 2 < from) continue;
    const bool narrow = cell.letter < 0x7F;
    if (!narrow || next != cell.column) result.push_back({cell.column, {}});
    result.back().letters += QString::fromUcs4(&cell.letter, 1);
    next = narrow ? cell.column + std::int64_t{1} : -1;
  }
  return result;
}

}  // namespace norvik::desktop
