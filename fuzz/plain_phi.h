#pragma once
// What the phi tools make of a text, step by step, one read after the other.

#include <string>
#include <vector>

namespace norvik::fuzz {

/// How the operator answers the questions about the rotation order of the limbs.
enum class PhiAnswer { ignore, mend, cancel };

struct PhiResult {
  int error = 0;
  bool complete = false;  ///< the operator has not cancelled
  std::vector<std::string> lines;
  std::size_t boxes = 0;
};

PhiResult plainPhi(const std::string& path, const std::string& text, PhiAnswer answer);

struct TreeResult {
  int error = 0;
  std::vector<std::string> items;
};

TreeResult plainTree(const std::string& text);

/// A mesh without groups, as its lines.
std::vector<std::string> plainCut(const std::string& text, const std::vector<std::string>& names);

}  // namespace norvik::fuzz
