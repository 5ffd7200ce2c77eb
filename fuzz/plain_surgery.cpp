#include "plain_surgery.h"

#include <string_view>

namespace norvik::fuzz {

namespace {

bool holds(const std::string& line, const std::string& token) {
  return line.find(token) != std::string::npos;
}
bool leftIs(const std::string& line, std::string_view token) {
  return std::string_view(line).substr(0, token.size()) == token;
}
bool isMorph(const std::string& line) {
  return leftIs(line, "\t\ttargetGeom");
}
bool isTwist(const std::string& line) {
  return leftIs(line, "\t\ttwist");
}

}  // namespace

bool PlainSurgery::copyThrough(const std::string& wanted) {
  while (!in.atEnd()) {
    out.push_back(in.line());
    if (out.back() == wanted) return true;
  }
  return false;
}

void PlainSurgery::copyOne() {
  if (!in.atEnd()) out.push_back(in.line());
}

void PlainSurgery::copyRest() {
  while (!in.atEnd()) out.push_back(in.line());
}

void PlainSurgery::removeMorph(const std::string& actor, const std::string& name) {
  for (int i = 0; i < 2; ++i) {
    copyThrough("actor " + actor);
    copyOne();
  }
  bool over = false;
  bool behindSkip = false;
  bool skipping = false;
  while (!over && !in.atEnd()) {
    const std::string line = in.line();
    if (skipping) {
      if (!isMorph(line) && !isTwist(line)) continue;
      skipping = false;
      behindSkip = true;
    }
    if (isMorph(line) && holds(line, name) && !behindSkip) {
      skipping = true;
      continue;
    }
    out.push_back(line);
    over = isTwist(line) || (behindSkip && isMorph(line) && holds(line, name));
    behindSkip = false;
  }
  copyRest();
}

bool PlainSurgery::removeLink(const std::string& name, const std::array<std::string, 4>& values) {
  if (!copyThrough("\t\ttargetGeom " + name)) return false;
  while (!in.atEnd()) {
    out.push_back(in.line());
    if (holds(out.back(), "interp")) break;
  }
  while (!in.atEnd()) {
    std::vector<std::string> block;
    while (block.size() < 5 && !in.atEnd()) block.push_back(in.line());
    bool all = block.size() == 5;
    for (const std::string& value : values) {
      bool found = false;
      for (const std::string& line : block) found = found || holds(line, value);
      all = all && found;
    }
    if (all) break;
    out.insert(out.end(), block.begin(), block.end());
  }
  copyRest();
  return true;
}

void PlainSurgery::removePart(const std::string& name) {
  try {
    dropPart(name);
  } catch (int number) {
    error = number;
  }
}

void PlainSurgery::dropPart(const std::string& name) {
  const std::string actor = "actor " + name;
  for (std::string line = in.line(); line != actor; line = in.line()) out.push_back(line);
  in.line();
  if (!in.line().empty()) in.line();
  in.line();

  bool entered = false;
  std::string replacement;
  while (!in.atEnd()) {
    std::string line = in.line();
    if (line != actor) {
      if (holds(line, name)) line = line.substr(0, line.size() - name.size()) + "NULL";
      out.push_back(line);
      continue;
    }
    line = in.line();
    while (!leftIs(line, "actor") && !entered) {
      line = in.line();
      entered = leftIs(line, "figure");
    }
    out.push_back(line);
    break;
  }
  while (!in.atEnd()) {
    std::string line = in.line();
    if (leftIs(line, "figure")) {
      entered = true;
      out.push_back(line);
      for (int i = 0; i < 3; ++i) {
        line = in.line();
        replacement = "\t\t\tBODY:" + (line.empty() ? line : line.substr(line.size() - 1));
        out.push_back(line);
      }
      line = in.line();
    }
    if (entered && !holds(line, name)) {
      out.push_back(line);
      line = in.line();
      replacement = line;
    }
    if (!entered || !holds(line, name)) {
      out.push_back(line);
      continue;
    }
    in.line();
    out.push_back(in.line());
    in.line();
    out.push_back(replacement);
    while (!in.atEnd()) {
      line = in.line();
      if (holds(line, "eld") && holds(line, name)) {
        in.line();
        line = in.line();
      }
      out.push_back(line);
    }
  }
}

void PlainSurgery::renameMorph(const std::string& from, const std::string& to) {
  try {
    const std::string wanted = "\t\ttargetGeom " + from;
    for (std::string line = in.line(); line != wanted; line = in.line()) out.push_back(line);
    out.push_back("\t\ttargetGeom " + to);
    out.push_back(in.line());
    in.line();
    out.push_back("\t\t\tname " + to);
    copyRest();
  } catch (int number) {
    error = number;
  }
}

void PlainSurgery::renamePart(const std::string& from, const std::string& to) {
  while (!in.atEnd()) {
    const std::string line = in.line();
    const auto at = line.find(from);
    out.push_back(at == std::string::npos ? line : line.substr(0, at) + to);
  }
}

}  // namespace norvik::fuzz
