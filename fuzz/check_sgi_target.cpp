// CheckSGI with LineEndingRepair against the repair's steps over the whole text.
// Steering: READ SIZE|FILLER SIZE|ANSWER. The filler stands in front of the text, to bring it to a
// border of the repair's blocks; an answer "c" is Cancel.

#include "desk.h"
#include "figure/check_sgi.h"
#include "input.h"
#include "plain_repair.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvik::fuzz;
  const Input input(data, size);
  const auto pieces = input.pieces(3);
  const std::string text = std::string(numberIn(pieces[1], 0, 4100), 'x') + input.text;
  Desk desk("cr2", text);
  desk.host.limitReads(numberIn(pieces[0], 1, 4096));
  const bool refused = pieces[2].starts_with('c');
  desk.front.answerWith(refused ? norvik::front::Answer::cancel : norvik::front::Answer::ok);

  require(Desk::run([&] { norvik::figure::CheckSGI(desk.session, desk.path); }) == 0, "an error");
  const bool untouched = isConventional(text) || refused;
  require(desk.opening.OpenCancelled == (refused && !isConventional(text)), "OpenCancelled");
  requireEqual(desk.host.bytesOf(desk.hostName), untouched ? text : repaired(text), "the file");
  require(desk.host.has("/c/fCR2.bak") != untouched, "whether there is a backup");
  if (!untouched) requireEqual(desk.host.bytesOf("/c/fCR2.bak"), text, "the backup");
  require(!desk.host.has("/c/f.new"), "the scratch file is gone");
  return 0;
}
