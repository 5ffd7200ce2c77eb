#include "desktop/history/change_rows.h"

#include "desktop/words.h"

#include <algorithm>

namespace norvik::desktop {

namespace {

QString lines(std::uint64_t first, std::uint64_t count) {
  if (count == 1) return QStringLiteral("line %1").arg(first + 1);
  return QStringLiteral("lines %1 to %2").arg(first + 1).arg(first + count);
}

QString placeOf(const text::Change& change) {
  if (change.after.count == 0) {
    return QStringLiteral("removed: ") + lines(change.before.first, change.before.count);
  }
  if (change.before.count == 0) {
    return QStringLiteral("added: ") + lines(change.after.first, change.after.count);
  }
  return QStringLiteral("changed: ") + lines(change.after.first, change.after.count);
}

QString shownLine(std::string_view line) {
  return shown(line).replace(QLatin1Char('\t'), QStringLiteral("    "));
}

}  // namespace

ChangeRows::ChangeRows(std::string before, std::string after)
    : host_(text::makePosixHost()),
      before_(std::move(before)),
      after_(std::move(after)),
      changes_(text::compareFiles(*host_, before_, after_, figure::sectionOf)),
      mentions_(figure::mentionsOfTheGone(*host_, before_, after_, changes_)) {
  std::uint64_t row = 0;
  for (std::size_t i = 0; i < changes_.size(); ++i) {
    starts_.push_back(row);
    removed_ += changes_[i].before.count;
    added_ += changes_[i].after.count;
    row += (beginsSection(i) ? 2U : 1U) + changes_[i].before.count + changes_[i].after.count;
  }
  starts_.push_back(row);
  starts_.push_back(row + (mentions_.empty() ? 0 : 1 + 2 * mentions_.size()));
}

bool ChangeRows::beginsSection(std::size_t change) const {
  return change == 0 || changes_[change].section != changes_[change - 1].section;
}

ChangeRows::Row ChangeRows::row(std::uint64_t index) const {
  const auto after = std::upper_bound(starts_.begin(), starts_.end(), index);
  if (after == starts_.begin() || after == starts_.end()) return {};
  const auto change = static_cast<std::size_t>(after - starts_.begin()) - 1;
  const std::uint64_t within = index - starts_[change];
  return change < changes_.size() ? rowOf(change, within) : mentionRow(within);
}

ChangeRows::Row ChangeRows::rowOf(std::size_t number, std::uint64_t index) const {
  const text::Change& change = changes_[number];
  if (beginsSection(number) && index-- == 0) {
    const bool named = !change.section.empty();
    return {Kind::section, named ? shownLine(change.section) : QStringLiteral("the beginning")};
  }
  if (index-- == 0) return {Kind::place, placeOf(change)};
  if (index < change.before.count) {
    return {Kind::removed, shownLine(text::lineOf(*host_, before_, change.before, index))};
  }
  index -= change.before.count;
  return {Kind::added, shownLine(text::lineOf(*host_, after_, change.after, index))};
}

ChangeRows::Row ChangeRows::mentionRow(std::uint64_t index) const {
  if (index-- == 0) return {Kind::section, QStringLiteral("Lines that still name what has gone")};
  const figure::Mention& mention = mentions_[index / 2];
  if (index % 2 == 0) {
    return {Kind::place,
            shownLine(mention.name) + QStringLiteral(": line %1").arg(mention.line + 1)};
  }
  return {Kind::place, QStringLiteral("    ") + shownLine(mention.text)};
}

}  // namespace norvik::desktop
