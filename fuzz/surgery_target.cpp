// The removals and the renames against their steps, line by line.
// Steering: READ SIZE|TOOL|NAME|OTHER|FIGURE|GROUP|RATIO. The tools: "morph" (NAME out of the actor
// OTHER), "link" (of NAME, its master being OTHER), "part", "rename-morph" and "rename-part" (NAME
// to OTHER).

#include "channels/removal/morph_removal.h"
#include "channels/removal/part_removal.h"
#include "channels/renaming/rename_passes.h"
#include "desk.h"
#include "input.h"
#include "plain_surgery.h"

namespace {

using norvik::channels::RemovedItem;

constexpr const char* kScratch = "C:\\Norvik\\result.txt";

/// The copy of a figure by one of the tools, and by its plain twin.
class Surgery {
 public:
  Surgery(norvik::fuzz::Desk& desk, norvik::fuzz::PlainSurgery& plain,
          const std::vector<std::string>& pieces)
      : desk_(desk), plain_(plain), name_(pieces[2]), other_(pieces[3]), pieces_(pieces) {}

  void operate() {
    const std::string& tool = pieces_[1];
    norvik::text::RewritePass pass(desk_.disk, desk_.path, kScratch);
    if (tool == "link") {
      removeLink(pass);
    } else if (tool == "part") {
      plain_.removePart(name_);
      norvik::channels::removePart(pass, name_);
    } else if (tool == "rename-morph") {
      plain_.renameMorph(name_, other_);
      norvik::channels::renameMorph(pass, name_, other_);
    } else if (tool == "rename-part") {
      plain_.renamePart(name_, other_);
      norvik::channels::renamePart(pass, {name_, other_});
    } else {
      plain_.removeMorph(other_, name_);
      remove(pass, {RemovedItem::Kind::morph, name_, {}}, true);
    }
  }

 private:
  void removeLink(norvik::text::RewritePass& pass) {
    RemovedItem item{RemovedItem::Kind::link, name_, {}};
    item.link.figure = pieces_[4];
    item.link.group = pieces_[5];
    item.link.master = other_;
    item.link.ratio = pieces_[6];
    remove(pass, item, plain_.removeLink(name_, {pieces_[4], pieces_[5], other_, pieces_[6]}));
  }

  void remove(norvik::text::RewritePass& pass, const RemovedItem& item, bool wanted) {
    const bool found = norvik::channels::removeItem(desk_.session, pass, item, other_);
    norvik::fuzz::require(found == wanted, "whether it was found");
  }

  norvik::fuzz::Desk& desk_;
  norvik::fuzz::PlainSurgery& plain_;
  const std::string& name_;
  const std::string& other_;
  const std::vector<std::string>& pieces_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvik::fuzz;
  const Input input(data, size);
  const auto pieces = input.pieces(7);
  Desk desk("cr2", input.text);
  desk.host.limitReads(numberIn(pieces[0], 1, 4096));
  PlainSurgery plain{PlainText(input.text)};

  const int error = Desk::run([&] { Surgery(desk, plain, pieces).operate(); });
  require(error == plain.error, "the error");
  requireEqual(desk.host.bytesOf("/c/Norvik/result.txt"), withLineEnds(plain.out), "the copy");
  requireEqual(desk.host.bytesOf(desk.hostName), input.text, "the figure");
  return 0;
}
