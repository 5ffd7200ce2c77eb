#include "channels/dials/name_index.h"

#include <algorithm>
#include <set>

namespace norvik::channels {

NameIndex::NameIndex(const std::vector<std::string>& names) : names_(names) {
  std::set<std::size_t> lengths;
  for (std::size_t i = 0; i < names_.size(); ++i) {
    places_[names_[i]].push_back(static_cast<int>(i));
    lengths.insert(names_[i].size());
  }
  lengths_.assign(lengths.begin(), lengths.end());
}

int NameIndex::firstIn(std::string_view text, int from) const {
  int first = kNone;
  const auto look = [&](std::string_view part) {
    const auto found = places_.find(part);
    if (found == places_.end()) return;
    const auto place = std::lower_bound(found->second.begin(), found->second.end(), from);
    if (place != found->second.end() && (first == kNone || *place < first)) first = *place;
  };
  for (const std::size_t length : lengths_) {
    if (length > text.size()) break;
    for (std::size_t begin = 0; begin + length <= text.size(); ++begin) {
      look(text.substr(begin, length));
      if (length == 0) break;
    }
  }
  return first;
}

}  // namespace norvik::channels
