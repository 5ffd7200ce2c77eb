#pragma once
// One run of the graft.

#include "front/session.h"
#include "text/line_on_hand.h"
#include "text/line_writer.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::builders {

/// Walks through the destination and the extracted part, writing the new figure. The steps are
/// called once each, in their order; all throw FileError where a file ends too early.
class Graft {
 public:
  /// `destination` is the path as it was when the routine was called.
  Graft(front::Session& session, std::string destination);

  void askForGeometry();
  void openFiles();
  void askForName();
  /// Up to the figure's second reference: the new part's storage block stands in front of it.
  void writeStorage();
  /// Up to the line that begins with "figure". False when the operator does not want to go on with
  /// a figure that embeds geometry.
  bool passActors();
  void writeChannels();
  void writeChild();
  /// Asks whether the part joins a chain, and if so which and where.
  void askForChain();
  void writeWeights();
  void writeWeld();
  void finish();

 private:
  void copyExtract();
  std::string parentLine(const std::string& line);
  void writeUnderParent(std::string_view keyword);
  void listLinks(const std::string& chain);
  void writeLinks();
  void next(std::string_view text);
  void waitUntil(const std::function<bool()>& done);

  front::Session& session_;
  front::Opening& opening_;
  std::string destination_;
  std::string geometry_;  ///< the new part's reference
  std::string suffix_;    ///< ":1", of the figure
  std::string part_;      ///< the new part's name with the suffix
  std::string parent_;    ///< its parent's name, without one
  std::optional<text::LineOnHand> in_;
  std::optional<text::LineOnHand> extract_;
  std::optional<text::LineWriter> out_;
  bool inChain_ = false;
  int insertAt_ = 0;  ///< the item of ChainList that was picked; 0 while none is
};

}  // namespace norvik::builders
