#pragma once
// The words behind a command, as what they stand for.

#include "front/control.h"
#include "front/front_end.h"
#include "headless/script.h"

#include <string>

namespace norvik::headless {

/// Why a command is not carried out; caught where the line is run. All functions here throw it for
/// a word that stands for nothing.
struct Refused {
  std::string why;
};

int wholeNumber(const std::string& word);
/// The number itself, if it is from `least` to `most`.
int within(int number, int least, int most);
/// "on" or "off".
bool isOn(const std::string& word);
/// "OK", "Cancel", "Yes" or "No".
front::Answer answerNamed(const std::string& word);
/// Takes "X Y" or "X Y right" off the line.
front::Mouse mouseAt(ScriptLine& line);

}  // namespace norvik::headless
