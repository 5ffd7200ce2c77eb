#pragma once
// The distinct names of groups or materials.

#include "front/list_box.h"
#include "mesh/colour_book.h"

#include <string>
#include <string_view>
#include <unordered_set>

namespace norvik::obj {

/// Fills ListGroups or ListMaterials with distinct names in the order in which they are first met.
class NameList {
 public:
  explicit NameList(front::ListBox& list) : list_(list) {
    known_.insert(list.items().begin(), list.items().end());
  }

  void add(std::string_view name) {
    if (known_.find(name) != known_.end()) return;
    known_.emplace(name);
    list_.add(name);
  }

 private:
  front::ListBox& list_;
  std::unordered_set<std::string, TextHash, std::equal_to<>> known_;
};

}  // namespace norvik::obj
