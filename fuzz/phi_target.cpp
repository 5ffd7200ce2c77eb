// The phi tools against their steps, read by read: the creator, the listing of parts, and the cut
// of a branch out of the same text taken for a mesh. Steering: READ SIZE|ANSWER|ITEM, the answer
// being "ignore", "cancel" or another word, the item the one that is selected for the cut.

#include "builders/phi/cut_branch.h"
#include "builders/phi/phi_lister.h"
#include "builders/phi/phi_writer.h"
#include "desk.h"
#include "input.h"
#include "plain_phi.h"
#include "plain_text.h"

namespace {

using norvik::fuzz::Desk;
using norvik::fuzz::PhiAnswer;
using norvik::fuzz::require;
using norvik::fuzz::requireEqual;
using norvik::fuzz::withLineEnds;

struct Case {
  std::size_t readSize;
  PhiAnswer answer;
  int item;
  std::string text;
};

norvik::front::Answer answerOf(PhiAnswer answer) {
  if (answer == PhiAnswer::ignore) return norvik::front::Answer::yes;
  return answer == PhiAnswer::cancel ? norvik::front::Answer::cancel : norvik::front::Answer::ok;
}

void create(const Case& given) {
  Desk desk("cr2", given.text);
  desk.host.limitReads(given.readSize);
  desk.front.answerWith(answerOf(given.answer));
  bool complete = false;
  const int error = Desk::run([&] {
    norvik::text::LineWriter out(desk.disk, "C:\\Norvik\\Phi.txt");
    norvik::builders::PhiWriter writer(desk.session, desk.path, out);
    complete = writer.write();
    out.close();
  });
  const auto wanted = norvik::fuzz::plainPhi(desk.path, given.text, given.answer);
  require(error == wanted.error, "the creator's error");
  require(complete == wanted.complete, "whether it was cancelled");
  require(desk.front.boxes().size() == wanted.boxes, "the number of boxes");
  requireEqual(desk.host.bytesOf("/c/Norvik/Phi.txt"), withLineEnds(wanted.lines), "the phi file");
}

void listAndCut(const Case& given) {
  Desk desk("cr2", given.text);
  desk.host.limitReads(given.readSize);
  desk.opening.LineObj.show();
  desk.opening.LabelFileNameForEditor.setCaption(desk.path);
  desk.opening.LabelOBJFileName.setCaption(desk.path);
  norvik::builders::FormTree form;
  const int error = Desk::run([&] { norvik::builders::PhiLister(desk.session, form); });
  const auto wanted = norvik::fuzz::plainTree(given.text);
  require(error == wanted.error, "the lister's error");
  requireEqual(form.ListPhi.items(), wanted.items, "the listed parts");

  form.ListPhi.choose(given.item);
  norvik::builders::wireCutBranch(desk.session, form);
  const int cutError = Desk::run([&] { form.CommandGo.clicked.raise(); });
  require(cutError == 0, "the cut's error");
  const auto names = norvik::builders::branchNames(form.ListPhi);
  requireEqual(desk.host.bytesOf("/c/Norvik/Lop.txt"),
               withLineEnds(norvik::fuzz::plainCut(given.text, names)), "the mesh");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const norvik::fuzz::Input input(data, size);
  const auto pieces = input.pieces(3);
  PhiAnswer answer = PhiAnswer::mend;
  if (pieces[1] == "ignore") answer = PhiAnswer::ignore;
  if (pieces[1] == "cancel") answer = PhiAnswer::cancel;
  const Case given{norvik::fuzz::numberIn(pieces[0], 1, 4096), answer,
                   static_cast<int>(norvik::fuzz::numberIn(pieces[2], 0, 99)), input.text};
  create(given);
  listAndCut(given);
  return 0;
}
