#pragma once
// The passes of the material tools and the scene conversions as plainly as they can be said: a line
// at a time over PlainText.

#include "plain_text.h"

#include <string>
#include <vector>

namespace norvik::fuzz {

/// A pass over a file: what was written when it ended, and the number of the error that ended it.
struct PlainConversion {
  std::string text;
  std::vector<std::string> out = {};
  int error = 0;

  /// `colourLine` takes the place of the key's line. False without the material.
  bool colour(const std::string& name, const std::string& key, const std::string& colourLine);
  void removeMaterials(const std::vector<std::string>& names, bool presets);
  void addMaterials(const std::vector<std::string>& names);
  void figureSections();
  void materialLibrary();
};

}  // namespace norvik::fuzz
