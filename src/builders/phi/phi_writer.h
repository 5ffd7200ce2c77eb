#pragma once
// The text of a phi file, drawn from a figure.

#include "builders/phi/phi_index.h"
#include "builders/phi/phi_parts.h"
#include "front/session.h"
#include "text/line_on_hand.h"
#include "text/line_writer.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::builders {

/// One run of the creator. The figure is read by fields, so that indentation does not count, again
/// and again from its start.
class PhiWriter {
 public:
  PhiWriter(front::Session& session, const std::string& figure, text::LineWriter& out);

  /// Writes the file, asking about rotation orders that are not as they should be. False when the
  /// operator cancels. Throws FileError for a figure in which something is missing.
  bool write();

 private:
  void readNoted();
  void readHeaders();
  void readHeaderBehind();
  bool writeFigure(const std::string& number);
  void writeHip(const std::string& number);
  void writeSpine(std::string_view partInMessage);
  bool writePart(const PhiPart& part, const std::string& number);
  void findPart(const std::string& sought);
  bool findChain();
  void writeChains();
  void writeChain();

  std::string lineHead();
  template <typename Check>
  bool addLetters(std::string& line, Check check);
  void checkSpine(std::string& line, std::string_view partInMessage, std::string_view note);
  bool checkLimb(std::string& line, const std::string& sought);

  front::Session& session_;
  std::string figure_;
  text::LineWriter& out_;
  text::LineOnHand in_;
  PhiIndex index_;
  std::string geometry_;              ///< of the last reference
  std::vector<std::string> numbers_;  ///< one a figure: the character that tells its body parts
  std::uint64_t firstHeader_ = 0;     ///< how many fields lead past the first figure's header
  std::uint64_t fields_ = 0;
  int depth_ = 1;
  enum class Ignore { notAsked, yes, no };
  Ignore ignore_ = Ignore::notAsked;  ///< wrong orders of the limbs
};

}  // namespace norvik::builders
