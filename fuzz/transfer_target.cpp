// The two halves of the body part transfer against their steps, line by line. Steering: READ
// SIZE|ITEM|NAME|ANSWER|CHAIN|PICK: the item of ListActors, the new part's name, "yes" or another
// word for both questions, the chain's name, the picked item of its links. The text behind the line
// "====" is the extracted part; without that line it is taken out of the figure itself.

#include "builders/transfer/extract_part.h"
#include "builders/transfer/graft_part.h"
#include "desk.h"
#include "input.h"
#include "plain_text.h"
#include "plain_transfer.h"

#include <algorithm>

namespace {

using norvik::fuzz::Desk;
using norvik::fuzz::PlainGraft;
using norvik::fuzz::PlainTransfer;
using norvik::fuzz::require;
using norvik::fuzz::requireEqual;
using norvik::fuzz::withLineEnds;

constexpr const char* kExtract = "/c/Norvik/bp.txt";

struct Case {
  std::size_t readSize;
  std::string item;
  PlainGraft graft;
};

/// Returns what was extracted.
std::string extract(const Case& given, const std::string& text) {
  constexpr int kExtracting = 69;
  Desk desk("cr2", text);
  desk.host.limitReads(given.readSize);
  norvik::builders::wireExtractPart(desk.session);
  desk.opening.Mode = kExtracting;
  desk.opening.ListActors.add(given.item);
  desk.opening.ListActors.choose(0);
  const int error = Desk::run([&] { desk.opening.ListActors.clicked.raise(); });
  const PlainTransfer wanted = norvik::fuzz::plainExtract(text, given.item);
  require(error == wanted.error, "the extraction's error");
  require(desk.front.boxes().size() == wanted.boxes, "the extraction's boxes");
  require((desk.opening.Mode != kExtracting) == wanted.complete, "whether a part was extracted");
  std::string found = desk.host.bytesOf(kExtract);
  requireEqual(found, withLineEnds(wanted.out), "the extracted part");
  return found;
}

void graft(const Case& given, const std::string& text, const std::string& part) {
  Desk desk("cr2", text);
  desk.host.addFile(kExtract, part);
  desk.host.limitReads(given.readSize);
  norvik::front::Opening& opening = desk.opening;
  opening.FileChooser.setPath("C:\\");
  opening.FileLabel.setCaption("f.cr2");
  opening.NameLabel.setCaption(given.graft.name);
  opening.ChainList.add(given.graft.chain);
  desk.front.answerWith(given.graft.yes ? norvik::front::Answer::yes : norvik::front::Answer::no);
  // The operator's steps: the mesh, the figure again, the chain, the link.
  int step = 0;
  desk.front.whenWaiting([&] {
    if (step == 0) {
      opening.FileChooser.setPath("C:\\Poser\\Runtime\\Geometries\\Man");
      opening.FileLabel.setCaption("a.obj");
    } else if (step == 1) {
      opening.FileLabel.setCaption("f.cr2");
    } else {
      opening.ChainList.choose(
          step == 2 ? 0 : std::min(given.graft.pick, opening.ChainList.count() - 1));
    }
    ++step;
  });
  const int error = Desk::run([&] { norvik::builders::BodyPartTransfer(desk.session); });
  const PlainTransfer wanted = norvik::fuzz::plainGraft(text, part, given.graft);
  require(error == wanted.error, "the graft's error");
  require(desk.front.boxes().size() == wanted.boxes, "the graft's boxes");
  requireEqual(desk.host.bytesOf(wanted.complete ? "/c/New-f.cr2" : "/c/newcr2.doc"),
               withLineEnds(wanted.out), "the figure");
  requireEqual(desk.host.bytesOf(desk.hostName), text, "the destination");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const norvik::fuzz::Input input(data, size);
  const auto pieces = input.pieces(6);
  const Case given{norvik::fuzz::numberIn(pieces[0], 1, 4096),
                   pieces[1],
                   {pieces[2], pieces[3] == "yes", pieces[4],
                    static_cast<int>(norvik::fuzz::numberIn(pieces[5], 0, 99))}};
  const std::string border = "====\r\n";
  const std::size_t end = input.text.find(border);
  const std::string text = input.text.substr(0, end);
  const std::string own = extract(given, text);
  graft(given, text, end == std::string::npos ? own : input.text.substr(end + border.size()));
  return 0;
}
