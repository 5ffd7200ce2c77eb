#include "front/list_box.h"

#include <algorithm>

namespace norvik::front {

ListBox::ListBox(Form& form, std::string_view name, Selection selection, ControlKind kind)
    : Control(form, name, kind), selection_(selection) {}

std::string_view ListBox::item(int index) const {
  return holds(index) ? std::string_view{items_[static_cast<std::size_t>(index)]}
                      : std::string_view{};
}

void ListBox::clear() {
  items_.clear();
  selected_.clear();
  ticked_.clear();
  index_ = kNone;
  ++itemChanges_;
  touch();
}

void ListBox::add(std::string_view item) {
  items_.emplace_back(item);
  selected_.push_back(false);
  ticked_.push_back(false);
  ++itemChanges_;
  touch();
}

void ListBox::insert(int index, std::string_view item) {
  if (index < 0 || index > count()) return;
  items_.emplace(items_.begin() + index, item);
  selected_.insert(selected_.begin() + index, false);
  ticked_.insert(ticked_.begin() + index, false);
  if (index_ >= index) ++index_;
  ++itemChanges_;
  touch();
}

void ListBox::setItem(int index, std::string_view item) {
  if (!holds(index)) return;
  items_[static_cast<std::size_t>(index)] = item;
  ++itemChanges_;
  touch();
}

void ListBox::remove(int index) {
  if (!holds(index)) return;
  items_.erase(items_.begin() + index);
  selected_.erase(selected_.begin() + index);
  ticked_.erase(ticked_.begin() + index);
  if (index_ == index) index_ = kNone;
  if (index_ > index) --index_;
  ++itemChanges_;
  touch();
}

bool ListBox::selected(int index) const {
  return holds(index) && selected_[static_cast<std::size_t>(index)];
}

void ListBox::setSelected(int index, bool selected) {
  if (!holds(index)) return;
  if (selected && !multiple()) std::fill(selected_.begin(), selected_.end(), false);
  selected_[static_cast<std::size_t>(index)] = selected;
  touch();
}

std::vector<int> ListBox::selection() const {
  std::vector<int> indexes;
  for (int i = 0; i < count(); ++i) {
    if (selected(i)) indexes.push_back(i);
  }
  return indexes;
}

void ListBox::clearSelection() {
  std::fill(selected_.begin(), selected_.end(), false);
  index_ = kNone;
  touch();
}

void ListBox::choose(int index) {
  if (!holds(index)) return;
  setSelected(index, true);
  index_ = index;
}

std::vector<int> ListBox::ticks() const {
  std::vector<int> indexes;
  for (int i = 0; i < count(); ++i) {
    if (ticked(i)) indexes.push_back(i);
  }
  return indexes;
}

bool ListBox::ticked(int index) const {
  return holds(index) && ticked_[static_cast<std::size_t>(index)];
}

void ListBox::setTicked(int index, bool ticked) {
  if (!holds(index)) return;
  ticked_[static_cast<std::size_t>(index)] = ticked;
  touch();
}

}  // namespace norvik::front
