#include "text/file_changes.h"

#include "text/line_feed.h"

#include <algorithm>
#include <deque>
#include <optional>
#include <unordered_map>

namespace norvik::text {

namespace {

/// So many equal lines make two stretches one: the headers of two dials are alike for fewer.
constexpr std::size_t kSame = 24;
constexpr std::size_t kFirstWindow = 64;
constexpr std::size_t kLastWindow = std::size_t{1} << 20U;
constexpr std::uint64_t kEndOfFile = 0x5DEECE66DULL;

/// One version, with the lines ahead that were looked at and not yet passed.
class Version {
 public:
  Version(HostOps& host, const std::string& name, const SectionOf& sectionOf)
      : feed_(host, name), sectionOf_(sectionOf) {}

  /// Whether there are more lines ahead than this.
  bool has(std::size_t index) {
    while (lines_.size() <= index && !ended_) read();
    return index < lines_.size();
  }
  std::uint64_t hash(std::size_t index) { return has(index) ? lines_[index].hash : kEndOfFile; }
  /// How many lines are ahead, counted up to `most`.
  std::size_t ahead(std::size_t most) {
    has(most);
    return std::min(most, lines_.size());
  }

  void pass(std::size_t count) {
    passed_ += count;
    lines_.erase(lines_.begin(), lines_.begin() + static_cast<std::ptrdiff_t>(count));
    while (!sections_.empty() && sections_.front().first < passed_) {
      section_ = std::move(sections_.front().second);
      sections_.pop_front();
    }
  }

  /// The section that the next line is in; a line that begins one is in it.
  const std::string& section() const {
    const bool begins = !sections_.empty() && sections_.front().first == passed_;
    return begins ? sections_.front().second : section_;
  }

  LineRange range(std::size_t from, std::size_t count) {
    LineRange result{passed_ + from, count, {}};
    for (std::size_t i = 0; i < count; i += LineRange::kPerMark) {
      result.marks.push_back(lines_[from + i].offset);
    }
    return result;
  }

  /// All that is left, without a look at it.
  LineRange rest() {
    LineRange result = range(0, lines_.size());
    pass(lines_.size());
    while (!ended_) {
      read();
      if (lines_.empty()) break;
      if (result.count++ % LineRange::kPerMark == 0) result.marks.push_back(lines_[0].offset);
      pass(1);
    }
    return result;
  }

 private:
  struct Line {
    std::uint64_t hash;
    std::uint64_t offset;
  };

  void read() {
    if (!feed_.next()) {
      ended_ = true;
      return;
    }
    if (std::string section = sectionOf_(feed_.line()); !section.empty()) {
      sections_.emplace_back(passed_ + lines_.size(), std::move(section));
    }
    lines_.push_back({feed_.hash(), feed_.offset()});
  }

  LineFeed feed_;
  const SectionOf& sectionOf_;
  std::deque<Line> lines_;
  std::deque<std::pair<std::uint64_t, std::string>> sections_;  ///< ahead, by their lines
  std::string section_;
  std::uint64_t passed_ = 0;
  bool ended_ = false;
};

/// A number for each line of a version up to `count`, and for the end: of the stretch that begins
/// there.
std::vector<std::uint64_t> stretches(Version& version, std::size_t count) {
  constexpr std::uint64_t kFactor = 0x100000001B3ULL;
  std::uint64_t power = 1;
  for (std::size_t i = 1; i < kSame; ++i) power *= kFactor;
  std::uint64_t rolling = 0;
  for (std::size_t i = 0; i + 1 < kSame; ++i) rolling = rolling * kFactor + version.hash(i);
  std::vector<std::uint64_t> result;
  result.reserve(count + 1);
  for (std::size_t i = 0; i <= count; ++i) {
    rolling = rolling * kFactor + version.hash(i + kSame - 1);
    result.push_back(rolling);
    rolling -= power * version.hash(i);
  }
  return result;
}

using Place = std::pair<std::size_t, std::size_t>;

/// The nearest place ahead from which both are the same for a stretch, or end.
std::optional<Place> nextSame(Version& before, Version& after) {
  for (std::size_t window = kFirstWindow; window <= kLastWindow; window *= 4) {
    const std::size_t left = before.ahead(window);
    const std::size_t right = after.ahead(window);
    std::unordered_map<std::uint64_t, std::size_t> places;
    places.reserve(right + 1);
    const auto ofRight = stretches(after, right);
    for (std::size_t j = 0; j <= right; ++j) places.try_emplace(ofRight[j], j);
    std::optional<Place> best;
    const auto ofLeft = stretches(before, left);
    for (std::size_t i = 0; i <= left && (!best || i < best->first + best->second); ++i) {
      const auto found = places.find(ofLeft[i]);
      if (found == places.end()) continue;
      if (!best || i + found->second < best->first + best->second) best = {i, found->second};
    }
    const bool whole = !before.has(left) && !after.has(right);
    if (best && (whole || best->first + best->second <= window)) return best;
  }
  return std::nullopt;
}

class Comparison {
 public:
  Comparison(Version& before, Version& after) : before_(before), after_(after) {}

  std::vector<Change> run() {
    for (;;) {
      passSame();
      if (!before_.has(0) && !after_.has(0)) return std::move(changes_);
      const auto same = nextSame(before_, after_);
      if (!same) {
        const std::string section = sectionHere();
        LineRange gone = before_.rest();
        changes_.push_back({section, std::move(gone), after_.rest()});
        return std::move(changes_);
      }
      split(same->first, same->second);
    }
  }

 private:
  void passSame() {
    while (before_.has(0) && after_.has(0) && before_.hash(0) == after_.hash(0)) {
      before_.pass(1);
      after_.pass(1);
    }
  }

  /// A line that begins a section and comes or goes with it names it.
  const std::string& sectionHere() const {
    return before_.section().empty() ? after_.section() : before_.section();
  }

  void add(std::size_t gone, std::size_t come) {
    if (gone == 0 && come == 0) return;
    Change change;
    change.section = gone == 0 ? after_.section() : sectionHere();
    change.before = before_.range(0, gone);
    change.after = after_.range(0, come);
    before_.pass(gone);
    after_.pass(come);
    changes_.push_back(std::move(change));
  }

  /// Finds the lines between two places that are the same after all, if that is no great work.
  void split(std::size_t left, std::size_t right) {
    while (left > 0 && right > 0 && before_.hash(left - 1) == after_.hash(right - 1)) {
      --left;
      --right;
    }
    constexpr std::size_t kMostCells = std::size_t{1} << 22U;
    if (left == 0 || right == 0 || left > kMostCells / right) return add(left, right);

    // The longest common part of what is left of both, from each pair of lines on.
    const std::size_t columns = right + 1;
    std::vector<std::uint16_t> longest((left + 1) * columns);
    constexpr std::uint16_t kMost = 0xFFFF;
    for (std::size_t i = left; i-- > 0;) {
      for (std::size_t j = right; j-- > 0;) {
        const std::uint16_t both = longest[(i + 1) * columns + j + 1];
        longest[i * columns + j] =
            before_.hash(i) == after_.hash(j)
                ? static_cast<std::uint16_t>(both < kMost ? both + 1 : kMost)
                : std::max(longest[(i + 1) * columns + j], longest[i * columns + j + 1]);
      }
    }
    std::size_t i = 0;
    std::size_t j = 0;
    std::size_t gone = 0;
    std::size_t come = 0;
    while (i < left || j < right) {
      const bool same = i < left && j < right && before_.hash(gone) == after_.hash(come);
      if (same) {
        add(gone, come);
        before_.pass(1);
        after_.pass(1);
        gone = come = 0;
        ++i;
        ++j;
      } else if (j == right ||
                 (i < left && longest[(i + 1) * columns + j] >= longest[i * columns + j + 1])) {
        ++gone;
        ++i;
      } else {
        ++come;
        ++j;
      }
    }
    add(gone, come);
  }

  Version& before_;
  Version& after_;
  std::vector<Change> changes_;
};

}  // namespace

std::vector<Change> compareFiles(HostOps& host, const std::string& before, const std::string& after,
                                 const SectionOf& sectionOf) {
  Version old(host, before, sectionOf);
  Version now(host, after, sectionOf);
  return Comparison(old, now).run();
}

std::string lineOf(HostOps& host, const std::string& file, const LineRange& range,
                   std::uint64_t index) {
  if (index >= range.count) return {};
  LineFeed feed(host, file, range.marks[index / LineRange::kPerMark]);
  for (std::uint64_t i = 0; i <= index % LineRange::kPerMark; ++i) {
    if (!feed.next()) return {};
  }
  return std::string{feed.line()};
}

}  // namespace norvik::text
