// SpaceChopper against a line by line copy. Steering: READ SIZE.

#include "desk.h"
#include "figure/space_chopper.h"
#include "input.h"
#include "plain_repair.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvik::fuzz;
  const Input input(data, size);
  Desk desk("cr2", input.text);
  desk.host.limitReads(numberIn(input.pieces(1)[0], 1, 4096));
  const int error = Desk::run([&] { norvik::figure::SpaceChopper(desk.session, desk.path); });
  require(error == 0, "an error");
  requireEqual(desk.host.bytesOf(desk.hostName), chopped(input.text), "the file");
  require(!desk.host.has("/c/Chop.doc"), "the scratch file is gone");
  return 0;
}
