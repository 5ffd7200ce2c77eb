#include "plain_repair.h"

#include "plain_text.h"

#include <algorithm>

namespace norvik::fuzz {

namespace {

/// Prints what stands in front of a line end, and takes it and the end from the carry.
void printLine(std::string& carry, std::size_t end, std::string& out) {
  std::string line = carry.substr(0, end);
  if (carry[end] == '\n' && line.ends_with('\r')) line.pop_back();
  out += line + "\r\n";
  carry.erase(0, end + 1);
}

void printLines(std::string& carry, std::string& out) {
  while (carry.size() > 1) {
    const auto lf = carry.find('\n');
    if (lf != std::string::npos) {
      printLine(carry, lf, out);
      if (carry.starts_with('\n')) carry.erase(0, 1);
      continue;
    }
    auto cr = carry.find('\r');
    while (cr != std::string::npos) {
      printLine(carry, cr, out);
      cr = carry.find('\r');
    }
    return;
  }
}

}  // namespace

bool isConventional(const std::string& text) {
  return text.substr(0, 200).find("\r\n") != std::string::npos;
}

std::string repaired(const std::string& text) {
  constexpr std::size_t kBlock = 2048;
  std::string carry;
  std::string out;
  for (std::size_t at = 0; at < text.size(); at += kBlock) {
    carry += text.substr(at, kBlock);
    printLines(carry, out);
  }
  return out;
}

std::string chopped(const std::string& text) {
  auto lines = linesOf(text);
  for (std::string& line : lines) {
    if (line.starts_with(' ')) line.erase(0, 1);
  }
  return withLineEnds(lines);
}

bool beginsIndented(const std::string& text, int lines) {
  auto all = linesOf(text);
  all.resize(std::min(all.size(), static_cast<std::size_t>(lines)));
  return std::any_of(all.begin(), all.end(),
                     [](const std::string& line) { return line.starts_with(' '); });
}

}  // namespace norvik::fuzz
