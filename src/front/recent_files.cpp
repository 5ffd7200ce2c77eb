#include "front/recent_files.h"

#include "text/file_names.h"

#include <algorithm>

namespace norvik::front {

namespace {

constexpr int kMostCounted = 11;
constexpr int kCapacity = 10;
constexpr std::string_view kSection = "MRUFiles";

}  // namespace

void AddMRUItem(Opening& opening, const std::string& path) {
  const auto& items = opening.ListMRU.items();
  const bool listed = std::any_of(items.begin(), items.end(), [&](const std::string& item) {
    return text::sameName(item, path);
  });
  if (!listed) AddMenuElement(opening, path);
}

void AddMenuElement(Opening& opening, const std::string& path) {
  if (opening.MruCount < kMostCounted) {
    ++opening.MruCount;
    opening.ListMRU.add(path);
  }
  if (opening.ListMRU.count() > kCapacity) {
    opening.ListMRU.remove(0);
    --opening.MruCount;
  }
}

void loadRecentFiles(Session& session) {
  for (int i = 0;; ++i) {
    const std::string path = session.settings.get(kSection, std::to_string(i), "");
    if (path.empty()) return;
    AddMRUItem(session.opening, path);
  }
}

void saveRecentFiles(Session& session) {
  Settings::Values values;
  const auto& items = session.opening.ListMRU.items();
  for (std::size_t i = 0; i < items.size(); ++i) values.emplace_back(std::to_string(i), items[i]);
  session.settings.set(kSection, values);
}

}  // namespace norvik::front
