// The settings store over any file that it may find. Steering: KEY|VALUE.

#include "front/settings.h"
#include "input.h"
#include "memory_host.h"
#include "plain_text.h"

#include <algorithm>

namespace {

constexpr const char* kFile = "/norvik.ini";

std::string withoutLineEnds(std::string value) {
  std::replace(value.begin(), value.end(), '\r', ' ');
  std::replace(value.begin(), value.end(), '\n', ' ');
  return value;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvik::fuzz;
  const Input input(data, size);
  const auto pieces = input.pieces(2);
  // Keys and sections are the program's own; values come from the operator.
  const std::string key = pieces[0].starts_with('v') ? "Ver" : "PLoc";
  const std::string other = key == "Ver" ? "PLoc" : "Ver";
  const std::string value = withoutLineEnds(pieces[1]);
  MemoryHost host;
  host.addFile(kFile, input.text);

  norvik::front::Settings settings(host, kFile);
  const std::string untouched = settings.get("Startup", other, "none");
  const std::string elsewhere = settings.get("MRUFiles", "1", "none");
  settings.set("Startup", key, pieces[1]);
  const std::string written = host.bytesOf(kFile);
  const norvik::front::Settings again(host, kFile);
  for (const norvik::front::Settings* store : {&std::as_const(settings), &again}) {
    requireEqual(store->get("startup", "PLOC", "none"), key == "PLoc" ? value : untouched, "PLoc");
    requireEqual(store->get("STARTUP", "ver", "none"), key == "Ver" ? value : untouched, "Ver");
    requireEqual(store->get("MRUFiles", "1", "none"), elsewhere, "another section");
  }
  settings.set("Startup", key, pieces[1]);
  requireEqual(host.bytesOf(kFile), written, "the same value again");
  return 0;
}
