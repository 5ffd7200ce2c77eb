#pragma once
// An operator who does whatever comes to mind.

#include "front/session.h"
#include "headless/script_front_end.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::fuzz {

/// The line in front of an act's answers: those that the act before has left are forgotten.
inline constexpr std::string_view kForgetAnswers = "#forget";

/// Picks script lines by an input's bytes: an act at a control that is in reach at that moment, in
/// front of which stand answers for all that it may ask. The same bytes and the same state of the
/// forms always give the same lines.
class RandomOperator {
 public:
  /// `files` are the system paths that a dialog may be answered with.
  RandomOperator(std::span<const std::uint8_t> bytes, std::vector<std::string> files)
      : bytes_(bytes), files_(std::move(files)) {}

  bool done() const { return at_ >= bytes_.size(); }
  /// The lines of the next act; empty if nothing can be done.
  std::vector<std::string> next(const front::Session& session,
                                const headless::ScriptFrontEnd& front);

 private:
  std::size_t draw(std::size_t count);
  void answerAhead(std::vector<std::string>& lines);
  std::string file();
  std::string word();
  std::string actAt(const front::Control& control, const std::string& name,
                    const std::vector<std::string>& names);

  std::span<const std::uint8_t> bytes_;
  std::size_t at_ = 0;
  std::vector<std::string> files_;
};

}  // namespace norvik::fuzz
