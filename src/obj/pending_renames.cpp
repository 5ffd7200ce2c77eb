#include "obj/pending_renames.h"

#include "text/columns.h"

namespace norvik::obj {

namespace {

/// What an empty box leaves behind the "*".
constexpr std::string_view kDrop = " NULL";

std::string newNameOf(std::string_view entry) {
  return std::string{text::after(entry, "*")};
}

}  // namespace

PendingRenames::PendingRenames(std::span<const std::string> entries) {
  for (const std::string& entry : entries) {
    renames_.push_back({std::string{text::trimmed(text::before(entry, "*"))}, newNameOf(entry)});
  }
}

std::optional<std::string> PendingRenames::newName(std::string_view name) const {
  std::optional<std::string> now;
  for (const Rename& rename : renames_) {
    if ((now ? std::string_view{*now} : name) == rename.from) now = rename.to;
  }
  return now;
}

std::vector<std::string> PendingRenames::newNames(std::span<const std::string> names) const {
  std::vector<std::string> now;
  for (const std::string& name : names) {
    std::string becomes = newName(name).value_or(name);
    if (becomes != kDrop) now.push_back(std::move(becomes));
  }
  return now;
}

std::vector<bool> PendingRenames::met(std::span<const std::string> names) const {
  std::vector<bool> met(renames_.size());
  for (std::string now : names) {
    for (std::size_t i = 0; i < renames_.size(); ++i) {
      if (now != renames_[i].from) continue;
      now = renames_[i].to;
      met[i] = true;
    }
  }
  return met;
}

std::string renameInWords(std::string_view entry) {
  const std::string name = newNameOf(entry);
  std::string words{text::before(entry, "*")};
  if (name != kDrop) words += " -> " + name;
  if (text::holds(name, kDropsName)) words += " (drop)";
  return words;
}

std::vector<std::string> takeRenameBack(const NameSide& side, int index) {
  if (index < 0 || index >= side.renames.count()) return {};
  // Behind a further View the list holds the names as they are in the file again.
  const std::vector<std::string> names = side.asRead.empty() ? side.names.items() : side.asRead;
  std::vector<std::string> left = side.renames.items();
  const auto place = left.begin() + index;
  std::vector<bool> metBefore = PendingRenames(left).met(names);
  metBefore.erase(metBefore.begin() + index);
  left.erase(place);
  const std::vector<bool> met = PendingRenames(left).met(names);

  std::vector<std::string> also;
  side.renames.clear();
  for (std::size_t i = 0; i < left.size(); ++i) {
    if (metBefore[i] && !met[i]) {
      also.push_back(left[i]);
    } else {
      side.renames.add(left[i]);
    }
  }
  side.names.clear();
  for (const std::string& name : PendingRenames(side.renames.items()).newNames(names)) {
    side.names.add(name);
  }
  side.asRead.clear();
  if (side.renames.count() > 0) side.asRead = names;
  return also;
}

}  // namespace norvik::obj
