#pragma once
// The removals and the renames as plainly as they can be said: a line at a time over PlainText.

#include "plain_text.h"

#include <array>
#include <string>
#include <vector>

namespace norvik::fuzz {

/// A pass over a figure: what was written when it ended, and the number of the error that ended it.
struct PlainSurgery {
  PlainText in;
  std::vector<std::string> out = {};
  int error = 0;

  void removeMorph(const std::string& actor, const std::string& name);
  /// The values of figure, group, master and ratio. False without the morph.
  bool removeLink(const std::string& name, const std::array<std::string, 4>& values);
  void removePart(const std::string& name);
  void renameMorph(const std::string& from, const std::string& to);
  void renamePart(const std::string& from, const std::string& to);

 private:
  bool copyThrough(const std::string& wanted);
  void copyOne();
  void copyRest();
  void dropPart(const std::string& name);
};

}  // namespace norvik::fuzz
