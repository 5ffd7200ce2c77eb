#include "figure/sections.h"

#include "text/line_feed.h"

#include <algorithm>
#include <array>
#include <set>

namespace norvik::figure {

namespace {

constexpr std::size_t kMostNames = 20;
constexpr std::size_t kMostMentions = 1000;
/// Changes of more lines are of no single thing.
constexpr std::uint64_t kMostLines = 1'000'000;

std::string_view withoutIndent(std::string_view line) {
  return line.substr(std::min(line.find_first_not_of(" \t"), line.size()));
}

std::string_view withoutTail(std::string_view text) {
  const auto last = text.find_last_not_of(" \t");
  return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

/// The name that a line gives to a thing of its own; empty for other lines.
std::string_view nameGivenBy(std::string_view line) {
  constexpr auto kKeys = std::to_array<std::string_view>(
      {"targetGeom ", "valueParm ", "actor ", "prop ", "material "});
  const std::string_view text = withoutTail(withoutIndent(line));
  for (const std::string_view key : kKeys) {
    if (text.starts_with(key)) return withoutIndent(text.substr(key.size()));
  }
  return {};
}

void forEachLine(text::HostOps& host, const std::string& file, const text::LineRange& range,
                 const std::function<void(std::string_view)>& use) {
  if (range.count == 0 || range.count > kMostLines) return;
  text::LineFeed feed(host, file, range.marks.front());
  for (std::uint64_t i = 0; i < range.count && feed.next(); ++i) use(feed.line());
}

/// Whether a text holds a name that is not part of a longer one.
bool names(std::string_view line, std::string_view name) {
  const auto borders = [&](std::size_t at) {
    return at >= line.size() || line[at] == ' ' || line[at] == '\t' || line[at] == ':';
  };
  for (auto at = line.find(name); at != std::string_view::npos; at = line.find(name, at + 1)) {
    if ((at == 0 || borders(at - 1)) && borders(at + name.size())) return true;
  }
  return false;
}

}  // namespace

std::string sectionOf(std::string_view line) {
  constexpr auto kAtTheStart = std::to_array<std::string_view>({"actor ", "prop ", "g "});
  for (const std::string_view key : kAtTheStart) {
    if (line.starts_with(key)) return std::string{withoutTail(line)};
  }
  if (line.starts_with("figure") && withoutTail(line) == "figure") return "figure";
  const std::string_view text = withoutIndent(line);
  return text.starts_with("material ") ? std::string{withoutTail(text)} : std::string{};
}

std::vector<Mention> mentionsOfTheGone(text::HostOps& host, const std::string& before,
                                       const std::string& after,
                                       const std::vector<text::Change>& changes) {
  std::vector<std::string> gone;
  std::set<std::string, std::less<>> given;
  for (const text::Change& change : changes) {
    forEachLine(host, after, change.after,
                [&](std::string_view line) { given.emplace(nameGivenBy(line)); });
  }
  for (const text::Change& change : changes) {
    forEachLine(host, before, change.before, [&](std::string_view line) {
      const std::string_view name = nameGivenBy(line);
      const bool isNew = !name.empty() && !given.contains(name) && gone.size() < kMostNames &&
                         std::find(gone.begin(), gone.end(), name) == gone.end();
      if (isNew) gone.emplace_back(name);
    });
  }
  std::vector<Mention> result;
  if (gone.empty()) return result;
  text::LineFeed feed(host, after);
  for (std::uint64_t line = 0; result.size() < kMostMentions && feed.next(); ++line) {
    for (const std::string& name : gone) {
      if (!names(feed.line(), name)) continue;
      result.push_back({name, line, std::string{feed.line()}});
      break;
    }
  }
  return result;
}

}  // namespace norvik::figure
