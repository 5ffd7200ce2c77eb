#include "channels/dials/reorder_lists.h"

#include "channels/dials/reorder_item.h"
#include "text/columns.h"

#include <algorithm>
#include <vector>

namespace norvik::channels {

namespace {

void setReorderLists(front::Opening& opening, bool visible) {
  opening.ListChannelsReorderByPart.setVisible(visible);
  opening.ListChannelsReorderNewOrder.setVisible(visible);
  opening.PictureChannelReorderDone.setVisible(visible);
  opening.OptionAlphabetize.setVisible(visible);
}

void moveItem(front::ListBox& from, front::ListBox& onto) {
  if (from.index() == front::ListBox::kNone) return;
  onto.add(from.chosen());
  from.remove(from.index());
}

void pickByAlphabet(front::Opening& opening) {
  std::vector<std::string> items = opening.ListChannelsReorderByPart.items();
  std::stable_sort(items.begin(), items.end(), [](const auto& left, const auto& right) {
    const std::string leftDial = text::lowered(ReorderItem(left).dial());
    return leftDial < text::lowered(ReorderItem(right).dial());
  });
  for (const std::string& item : items) opening.ListChannelsReorderNewOrder.add(item);
  opening.ListChannelsReorderByPart.clear();
}

void shiftItem(front::ListBox& list, int by) {
  const int place = list.index() + by;
  if (list.index() == front::ListBox::kNone || place < 0 || place >= list.count()) return;
  std::vector<std::string> items = list.items();
  std::swap(items[static_cast<std::size_t>(list.index())], items[static_cast<std::size_t>(place)]);
  list.clear();
  for (const std::string& item : items) list.add(item);
  list.choose(place);
}

void keyInNewOrder(front::Opening& opening, const std::string& key) {
  front::ListBox& list = opening.ListChannelsReorderNewOrder;
  if (key == "Alt+Up") shiftItem(list, -1);
  if (key == "Alt+Down") shiftItem(list, 1);
  if (key == "Delete") moveItem(list, opening.ListChannelsReorderByPart);
}

}  // namespace

void showReorderLists(front::Opening& opening, const std::string& actor) {
  opening.ListChannelsReorderByPart.clear();
  opening.ListChannelsReorderNewOrder.clear();
  opening.ListChannelsReorderReordered.clear();
  for (const std::string& item : opening.ListChannelsReorder.items()) {
    if (text::begins(item, actor)) opening.ListChannelsReorderByPart.add(item);
  }
  opening.OptionAlphabetize.setValue(false);
  setReorderLists(opening, true);
}

void hideReorderLists(front::Opening& opening) {
  setReorderLists(opening, false);
}

void wireReorderLists(front::Session& session) {
  front::Opening& opening = session.opening;
  const auto pick = [&opening] {
    moveItem(opening.ListChannelsReorderByPart, opening.ListChannelsReorderNewOrder);
  };
  opening.ListChannelsReorderByPart.clicked.add(pick);
  opening.ListChannelsReorderByPart.key.add([pick](const std::string& key) {
    if (key == "Enter") pick();
  });
  opening.OptionAlphabetize.clicked.add([&opening] { pickByAlphabet(opening); });
  opening.ListChannelsReorderNewOrder.key.add(
      [&opening](const std::string& key) { keyInNewOrder(opening, key); });
  for (front::ListBox* list :
       {&opening.ListChannelsReorderByPart, &opening.ListChannelsReorderNewOrder}) {
    list->key.add([&opening](const std::string& key) {
      if (key == "Escape") hideReorderLists(opening);
    });
  }
}

}  // namespace norvik::channels
