#pragma once
// An item of ListChannels that is to be removed, as the trash reads it.

#include "channels/erc_details.h"

#include <string>

namespace norvik::channels {

struct RemovedItem {
  enum class Kind {
    morph,    ///< a plain morph, removed as a whole
    link,     ///< an ERC link of a morph
    channel,  ///< a link of a rotation or translation channel
  };

  Kind kind = Kind::morph;
  std::string name;  ///< what is searched for, and what the question calls it
  ErcLink link;      ///< of a link, the values that its block must hold
};

/// Reads the item at an index. The columns of the detail lines are older than the list's present
/// texts: the name of a slaved channel comes out as "Channel: " and the name, which is in no
/// figure. So it stays; the operator is told that the morph cannot be removed.
RemovedItem removedItem(const front::ListBox& list, int index);

}  // namespace norvik::channels
