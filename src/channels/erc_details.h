#pragma once
// The detail lines of ERC links in ListChannels. They are display and data: the tools tell them by
// prefix and read the link back by columns.

#include "front/list_box.h"

#include <string>
#include <string_view>

namespace norvik::channels {

/// A link as a figure writes it behind valueOpDeltaAdd.
struct ErcLink {
  std::string figure;
  std::string group;
  std::string master;
  std::string ratio;
  std::string slaved;  ///< the dial name of the channel that holds the link
};

/// Adds the seven items of a link: `actor` (empty in the view of one part), then the details.
void addErcItems(front::ListBox& list, std::string_view actor, const ErcLink& link);

/// What a detail line says, by the number that the tools know it by.
enum DetailClass : int {
  kNoDetail = 0,
  kMaster = 1,
  kSlaved = 2,
  kFigure = 3,
  kGroup = 4,
  kRatio = 5
};

/// The class of an item's text behind its tab. The tests follow one another and the later one wins,
/// so that the line of the master's group is kGroup; a morph whose name begins like a detail is
/// taken for one.
DetailClass detailClass(std::string_view text);

/// The index of the slaved line among the five detail lines around an item of a class.
int slavedIndex(int index, DetailClass detail);

/// Reads a link back from the five detail lines around an item of a class.
ErcLink ercLinkAround(const front::ListBox& list, int index, DetailClass detail);

}  // namespace norvik::channels
