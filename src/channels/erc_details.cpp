#include "channels/erc_details.h"

#include "text/columns.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kSlavedHead = "\tSlaved Channel: ";
constexpr std::string_view kMasterHead = "\tMaster (Controlling) Channel: ";
constexpr std::string_view kFigureHead = "\tFigure (Controlling): ";
constexpr std::string_view kGroupHead = "\tMaster (Controlling) Group: ";
constexpr std::string_view kRatioHead = "\tDelta Control Ratio: ";

/// How far below the slaved line a detail stands.
int distanceFromSlaved(DetailClass detail) {
  switch (detail) {
    case kMaster:
      return 1;
    case kFigure:
      return 2;
    case kGroup:
      return 3;
    case kRatio:
      return 4;
    default:
      return 0;
  }
}

}  // namespace

void addErcItems(front::ListBox& list, std::string_view actor, const ErcLink& link) {
  std::string item;
  const auto addDetail = [&](std::string_view head, std::string_view value) {
    list.add(item.assign(head).append(value));
  };
  list.add(actor);
  list.add("\tERC Channel");
  addDetail(kSlavedHead, link.slaved);
  addDetail(kMasterHead, link.master);
  addDetail(kFigureHead, link.figure);
  addDetail(kGroupHead, link.group);
  addDetail(kRatioHead, link.ratio);
}

DetailClass detailClass(std::string_view text) {
  DetailClass result = kNoDetail;
  if (text::begins(text, "Master")) result = kMaster;
  if (text::begins(text, "Slave")) result = kSlaved;
  if (text::begins(text, "Figure")) result = kFigure;
  if (text::holds(text, "Group")) result = kGroup;
  if (text::begins(text, "Delta")) result = kRatio;
  return result;
}

int slavedIndex(int index, DetailClass detail) {
  return index - distanceFromSlaved(detail);
}

ErcLink ercLinkAround(const front::ListBox& list, int index, DetailClass detail) {
  const int slaved = slavedIndex(index, detail);
  const auto value = [&](int distance, std::string_view head) {
    return std::string{text::from(list.item(slaved + distance), head.size() + 1)};
  };
  return {value(2, kFigureHead), value(3, kGroupHead), value(1, kMasterHead), value(4, kRatioHead),
          value(0, kSlavedHead)};
}

}  // namespace norvik::channels
