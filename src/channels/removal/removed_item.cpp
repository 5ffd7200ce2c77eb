#include "channels/removal/removed_item.h"

#include "text/columns.h"

namespace norvik::channels {

namespace {

DetailClass classOf(std::string_view item) {
  if (item.starts_with('\t')) return detailClass(item.substr(1));
  return text::holds(item, "Group") ? kGroup : kNoDetail;
}

ErcLink linkByOlderColumns(const front::ListBox& list, int index, DetailClass detail) {
  constexpr std::size_t kSlavedColumn = 8;
  constexpr std::size_t kMasterColumn = 10;
  constexpr std::size_t kFigureColumn = 10;
  constexpr std::size_t kGroupColumn = 15;
  constexpr std::size_t kRatioColumn = 16;
  constexpr std::size_t kRatioColumnFromSlaved = 15;
  const int slaved = slavedIndex(index, detail);
  const auto value = [&](int distance, std::size_t column) {
    return std::string{text::from(list.item(slaved + distance), column)};
  };
  ErcLink link;
  link.slaved = value(0, kSlavedColumn);
  link.master = value(1, kMasterColumn);
  link.figure = value(2, kFigureColumn);
  link.group = value(3, kGroupColumn);
  link.ratio = value(4, detail == kSlaved ? kRatioColumnFromSlaved : kRatioColumn);
  return link;
}

}  // namespace

RemovedItem removedItem(const front::ListBox& list, int index) {
  RemovedItem removed;
  const std::string_view item = list.item(index);
  const DetailClass detail = classOf(item);
  if (detail == kNoDetail) {
    removed.name = item.starts_with('\t') ? item.substr(1) : item;
    return removed;
  }
  removed.link = linkByOlderColumns(list, index, detail);
  const std::string& slaved = removed.link.slaved;
  const bool turnsAndMoves = text::holds(slaved, "rot") && text::holds(slaved, "tran");
  removed.kind = turnsAndMoves ? RemovedItem::Kind::channel : RemovedItem::Kind::link;
  removed.name = turnsAndMoves ? std::string_view{slaved} : text::from(slaved, 2);
  return removed;
}

}  // namespace norvik::channels
