#include "front/settings.h"

#include "text/classic_errors.h"
#include "text/columns.h"
#include "text/safe_replace.h"

#include <cerrno>
#include <optional>

namespace norvik::front {

namespace {

using text::equalIgnoringCase;
using text::trimmed;

/// The name in "[name]"; nothing for another line. Some editors put a mark of the encoding in front
/// of the first line.
std::optional<std::string_view> sectionOf(std::string_view line) {
  constexpr std::string_view kEncodingMark = "\xEF\xBB\xBF";
  if (line.starts_with(kEncodingMark)) line.remove_prefix(kEncodingMark.size());
  const auto bare = trimmed(line);
  if (!bare.starts_with('[') || !bare.ends_with(']')) return std::nullopt;
  return bare.substr(1, bare.size() - 2);
}

/// The key and value of "key=value"; nothing for another line. The value is all behind the "=", but
/// for a blank there that stands in front of the "=" as well, as other programs lay out such files.
std::optional<std::pair<std::string_view, std::string_view>> entryOf(std::string_view line) {
  const auto equals = line.find('=');
  const bool comment = trimmed(line).starts_with(';') || trimmed(line).starts_with('#');
  if (equals == std::string_view::npos || comment) return std::nullopt;
  const std::string_view key = line.substr(0, equals);
  std::string_view value = line.substr(equals + 1);
  if (key.ends_with(' ') && value.starts_with(' ')) value.remove_prefix(1);
  return std::pair{trimmed(key), value};
}

}  // namespace

Settings::Settings(text::HostOps& host, std::string hostFile)
    : host_(&host), file_(std::move(hostFile)) {
  load();
}

void Settings::load() {
  std::unique_ptr<text::HostFile> file;
  const int error = host_->open(file_, text::HostOpenMode::read, file);
  if (error == ENOENT) return;
  text::raise(error);
  std::string all;
  std::size_t got = 0;
  do {
    const std::size_t old = all.size();
    all.resize(old + text::kBlockSize);
    text::raise(file->read(all.data() + old, text::kBlockSize, got));
    all.resize(old + got);
  } while (got > 0);

  std::string_view rest = all;
  while (!rest.empty()) {
    auto line = text::before(rest, "\n");
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    while (line.ends_with('\r')) line.remove_suffix(1);
    lines_.emplace_back(line);
  }
}

std::string Settings::get(std::string_view section, std::string_view key,
                          std::string_view fallback) const {
  bool inSection = false;
  for (const std::string& line : lines_) {
    if (const auto name = sectionOf(line)) {
      inSection = equalIgnoringCase(*name, section);
    } else if (const auto entry = entryOf(line);
               inSection && entry && equalIgnoringCase(entry->first, key)) {
      return std::string{entry->second};
    }
  }
  return std::string{fallback};
}

/// Puts a value into its line, or a new line at the end of its section. Whether anything changed.
bool Settings::put(std::string_view section, std::string_view key, std::string_view value) {
  std::string wanted{key};
  wanted.append("=").append(text::replaced(text::replaced(value, '\n', ' '), '\r', ' '));
  bool inSection = false;
  auto place = lines_.end();  // behind the section's last entry
  for (auto line = lines_.begin(); line != lines_.end(); ++line) {
    if (const auto name = sectionOf(*line)) {
      inSection = equalIgnoringCase(*name, section);
      if (inSection) place = line + 1;
    } else if (const auto entry = entryOf(*line); inSection && entry) {
      place = line + 1;
      if (!equalIgnoringCase(entry->first, key)) continue;
      if (*line == wanted) return false;
      *line = wanted;
      return true;
    }
  }
  const bool sectionFound = place != lines_.end() || inSection;
  if (!sectionFound) {
    lines_.push_back("[" + std::string{section} + "]");
    place = lines_.end();
  }
  lines_.insert(place, wanted);
  return true;
}

void Settings::set(std::string_view section, std::string_view key, std::string_view value) {
  set(section, {{std::string{key}, std::string{value}}});
}

void Settings::set(std::string_view section, const Values& values) {
  const auto old = lines_;
  bool changed = false;
  for (const auto& [key, value] : values) changed = put(section, key, value) || changed;
  if (!changed || host_ == nullptr) return;
  try {
    save();
  } catch (const text::FileError&) {
    lines_ = old;
    throw;
  }
}

void Settings::save() const {
  std::string all;
  for (const std::string& line : lines_) all.append(line).append("\n");
  text::replaceContent(*host_, file_, all);
}

}  // namespace norvik::front
