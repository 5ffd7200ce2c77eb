#include "headless/arguments.h"

#include <charconv>
#include <functional>
#include <map>

namespace norvik::headless {

int wholeNumber(const std::string& word) {
  int number = 0;
  const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
  if (word.empty() || result.ec != std::errc{} || result.ptr != word.data() + word.size()) {
    throw Refused{"'" + word + "' is no whole number"};
  }
  return number;
}

int within(int number, int least, int most) {
  if (number < least || number > most) {
    throw Refused{std::to_string(number) + " is not from " + std::to_string(least) + " to " +
                  std::to_string(most)};
  }
  return number;
}

bool isOn(const std::string& word) {
  if (word != "on" && word != "off") throw Refused{"'" + word + "' is neither on nor off"};
  return word == "on";
}

front::Answer answerNamed(const std::string& word) {
  static const std::map<std::string, front::Answer, std::less<>> answers{
      {"OK", front::Answer::ok},
      {"Cancel", front::Answer::cancel},
      {"Yes", front::Answer::yes},
      {"No", front::Answer::no}};
  const auto found = answers.find(word);
  if (found == answers.end()) throw Refused{"'" + word + "' is not OK, Cancel, Yes or No"};
  return found->second;
}

front::Mouse mouseAt(ScriptLine& line) {
  front::Mouse mouse;
  mouse.x = wholeNumber(line.word());
  mouse.y = wholeNumber(line.word());
  const std::string button = line.word();
  if (!button.empty() && button != "right") throw Refused{"'" + button + "' is not right"};
  if (button == "right") mouse.button = front::MouseButton::right;
  return mouse;
}

}  // namespace norvik::headless
