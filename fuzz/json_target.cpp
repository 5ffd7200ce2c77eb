// Any bytes as JSON and back, and script lines word by word. The whole input is the text.

#include "headless/json.h"
#include "headless/script.h"
#include "input.h"
#include "json_check.h"

#include <algorithm>
#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvik::fuzz;
  namespace headless = norvik::headless;
  const std::string bytes(data, data + size);
  const auto back = jsonBytes(headless::jsonString(bytes));
  require(back.has_value(), "a string is JSON");
  requireEqual(*back, bytes, "a string told back");
  const auto line = headless::JsonObject(bytes).text(bytes, bytes).texts("t", {bytes, ""}).line();
  require(isJsonObject(line), "an object is JSON");

  std::istringstream in(bytes);
  headless::Script script(in);
  int number = 0;
  while (auto command = script.next()) {
    require(command->number() > number, "lines are numbered upwards");
    number = command->number();
    auto same = *command;
    // The words of a line are its bytes without the blanks, whichever end they are taken from.
    std::string forward;
    while (command->hasMore()) {
      const std::string word = command->word();
      require(!word.empty() && word.find(' ') == std::string::npos, "a word");
      forward += word;
    }
    require(command->word().empty() && command->rest().empty(), "nothing behind the last word");
    std::string backward;
    while (same.hasMore()) backward.insert(0, same.lastWord());
    requireEqual(backward, forward, "the words");
  }
  return 0;
}
