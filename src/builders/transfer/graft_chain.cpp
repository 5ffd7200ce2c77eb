// The graft's steps around the chain that the new part may join.

#include "builders/transfer/graft.h"
#include "builders/transfer/new_weight.h"
#include "text/columns.h"

namespace norvik::builders {

namespace {

using text::holds;

constexpr std::string_view kGap = " ";
/// Where the index and the weight stand in a weight line.
constexpr std::size_t kWeightColumn = 14;

void removeItems(front::ListBox& list, std::string_view unwanted) {
  for (int i = list.count() - 1; i >= 0; --i) {
    if (list.item(i) == unwanted) list.remove(i);
  }
}

}  // namespace

void Graft::askForChain() {
  session_.hourglass(false);
  inChain_ = session_.front.messageBox("Is the new body part involved in the IK chain?", "Next...",
                                       front::kYesNo) == front::Answer::yes;
  if (!inChain_) return;
  front::ListBox& list = opening_.ChainList;
  const auto picked = [&list] { return list.index() != front::ListBox::kNone; };
  list.show();
  waitUntil(picked);
  const std::string chain{list.chosen()};
  list.clear();
  listLinks(chain);
  next("Click where you want to put your part in the IK chain.");
  waitUntil(picked);
  writeLinks();
}

/// Copies the figure up to the chain's links and lists these, with a gap before and behind each.
void Graft::listLinks(const std::string& chain) {
  // The line on hand, the first chain's, is written already.
  if (!holds(in_->line(), chain)) {
    const bool found =
        in_->copyTo(*out_, [&](std::string_view line) { return holds(line, chain); }, {chain});
    out_->line(found ? in_->line() : in_->read());
  }
  for (int i = 0; i < 3; ++i) out_->line(in_->read());
  front::ListBox& list = opening_.ChainList;
  list.add(kGap);
  while (!holds(in_->line(), "Weight")) {
    in_->read();
    if (holds(in_->line(), "Weight")) break;
    list.add(in_->line());
    list.add(kGap);
  }
}

/// Writes the links with the new one in the gap that was picked. Where a link was picked, that is
/// written and no new one.
void Graft::writeLinks() {
  const front::ListBox& list = opening_.ChainList;
  // The first gap is never looked at: a part put there gets no link.
  for (int i = 1; i <= list.count(); ++i) {
    const std::string_view item = list.item(i);
    if (i == list.index()) {
      insertAt_ = i;
      if (item == kGap) {
        out_->line("\t\taddLink " + part_ + " ");
      } else {
        out_->line(item);
      }
    } else if (!item.empty() && item != kGap) {
      out_->line(item);
    }
  }
}

/// Copies the chain's weights from the line on hand on, and gives the new link one behind them.
void Graft::writeWeights() {
  front::ListBox& list = opening_.ChainList;
  list.clear();
  list.add("LINKWEIGHTS");
  list.add(text::from(in_->line(), kWeightColumn));
  out_->line(in_->line());
  std::string last;
  for (int counter = 2; !holds(in_->line(), "\t}"); counter += 2) {
    in_->read();
    if (counter == insertAt_) list.add(kYourLink);
    if (holds(in_->line(), "\t}")) break;
    last = in_->line();
    list.add(text::from(last, kWeightColumn));
    out_->line(last);
  }
  static_cast<void>(weightByRatio(list, last));
  removeItems(list, kGap);
  removeItems(list, kYourLink);

  const NewWeight weight = weightBehind(last);
  if (inChain_) out_->line(weight.line);
  out_->line(in_->line());
  list.add(weight.text);
  if (inChain_) {
    session_.front.messageBox(
        "Here are the link weights for this chain. The new one at the end may need to be manually "
        "modified, Norvik has taken its best guess at what should be there.",
        "Note!", front::kOk);
  }
  list.clear();
  list.hide();
}

}  // namespace norvik::builders
