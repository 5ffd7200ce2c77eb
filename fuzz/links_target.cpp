// Links of all kinds and ratios on any figure at all.
// Steering: KIND|READ SIZE, the kind from 0 to 9.
//
// A script makes the choices; what comes out is held against the figure: a link is five lines more,
// or five in the place of five, and a ratio is one line for one.

#include "input.h"
#include "memory_host.h"
#include "plain_text.h"
#include "runner.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

using namespace norvik::fuzz;

using Lines = std::vector<std::string>;

/// How many lines two texts have in common at their front and at their end, not counted twice.
std::size_t common(const Lines& one, const Lines& other) {
  const std::size_t most = std::min(one.size(), other.size());
  std::size_t front = 0;
  while (front < most && one[front] == other[front]) ++front;
  std::size_t back = 0;
  while (back < most - front && one[one.size() - 1 - back] == other[other.size() - 1 - back]) {
    ++back;
  }
  return front + back;
}

std::string scriptFor(const std::string& kind) {
  return "setting Startup PLoc C:\\Poser\\\nstart\n"
         "put LabelFileNameForEditor caption C:\\f.cr2\n"
         "load DialogERC\nclick DialogERC.Option" +
         kind +
         "\nload FormECM\nselect FormECM.ListControlledMorph 0\n"
         "select FormECM.ListControlledMorph 0\nanswer Yes\nchoose C:\\linked.cr2\n"
         "select FormECM.ListActorsECM 0\nkey FormECM.TextPBMRatio Enter\n"
         "key FormECM.TextPBM1 Enter\nselect FormECM.ListConFigECM 0\n"
         "key FormECM.TextPBM3 Enter\nclose FormECM\n"
         "load FormListEMCs\nitem FormListEMCs.ListEMCs Delta\ntype FormListEMCs.Text1 7\n"
         "answer No\nkey FormListEMCs.Text1 Enter\nclose FormListEMCs\n";
}

void checkLink(const Lines& figure, const MemoryHost& host) {
  if (!host.has("/c/linked.cr2")) return;
  const Lines linked = linesOf(host.bytesOf("/c/linked.cr2"));
  constexpr std::size_t kLink = 5;
  const bool added = linked.size() == figure.size() + kLink;
  require(added || linked.size() == figure.size(), "a link is five lines");
  const std::size_t same = common(figure, linked);
  require(same + (added ? 0 : kLink) >= figure.size(), "the other lines stay");
}

void checkRatio(const Lines& figure, const MemoryHost& host) {
  if (!host.has("/c/Norvik/ChangeRatio.txt")) return;
  const Lines changed = linesOf(host.bytesOf("/c/Norvik/ChangeRatio.txt"));
  if (changed.empty()) return;
  require(changed.size() == figure.size(), "a ratio is one line for one");
  require(common(figure, changed) + 1 >= figure.size(), "the other lines stay");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static constexpr std::array<const char*, 10> kKinds{"JCM", "PBM", "CM",  "JCJ", "JCT",
                                                      "MCT", "TCM", "MCJ", "TCJ", "MCM"};
  const Input input(data, size);
  const auto pieces = input.pieces(2);
  MemoryHost host;
  addFolders(host);
  host.addFile("/c/f.cr2", input.text);
  host.limitReads(numberIn(pieces[1], 1, 4096));
  runInMemory(host, scriptFor(kKinds.at(numberIn(pieces[0], 0, kKinds.size() - 1))), "");
  requireEqual(host.bytesOf("/c/f.cr2"), input.text, "the figure");
  const Lines figure = linesOf(input.text);
  checkLink(figure, host);
  checkRatio(figure, host);
  return 0;
}
