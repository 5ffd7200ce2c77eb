#include "plain_conversions.h"

namespace norvik::fuzz {

namespace {

bool holds(const std::string& line, const std::string& token) {
  return line.find(token) != std::string::npos;
}

bool begins(const std::string& line, const std::string& token) {
  return line.compare(0, token.size(), token) == 0;
}

std::string unindented(const std::string& line) {
  std::size_t at = 0;
  while (at < line.size() && (line[at] == ' ' || line[at] == '\t')) ++at;
  return line.substr(at);
}

std::string trimmed(std::string text) {
  while (!text.empty() && text.back() == ' ') text.pop_back();
  while (!text.empty() && text.front() == ' ') text.erase(0, 1);
  return text;
}

bool endsIn(const std::string& line, const std::string& end) {
  return line.size() >= end.size() && line.substr(line.size() - end.size()) == end;
}

/// Runs a pass until it ends or reads past the end.
template <typename Steps>
int run(Steps&& steps) {
  try {
    steps();
    return 0;
  } catch (int number) {
    return number;
  }
}

bool isBlockEnd(const std::string& line) {
  return holds(line, "material") || holds(line, "preset") || holds(line, "displayMode");
}

std::string mapName(const std::string& field) {
  const auto blank = field.find(' ');
  const std::string path = blank == std::string::npos ? "" : field.substr(blank + 1);
  std::string name;
  for (const char c : path) {
    name += c;
    if (c == ':' || c == '\t') name.clear();
  }
  return name;
}

}  // namespace

bool PlainConversion::colour(const std::string& name, const std::string& key,
                             const std::string& colourLine) {
  PlainText fields(text);
  bool found = false;
  while (!found && !fields.atEnd()) found = fields.field() == "material " + trimmed(name);
  if (!found) return false;
  PlainText in(text);
  error = run([&] {
    while (in.position() < fields.position()) out.push_back(in.line());
    for (;;) {
      const std::string line = in.line();
      if (begins(line, key) || begins(line, "\t\t" + key)) break;
      out.push_back(line);
    }
    out.push_back(colourLine);
    while (!in.atEnd()) out.push_back(in.line());
  });
  return true;
}

void PlainConversion::removeMaterials(const std::vector<std::string>& names, bool presets) {
  PlainText in(text);
  const auto goes = [&](const std::string& line) {
    if (presets && holds(line, "preset")) return true;
    if (!holds(line, "material") || holds(line, "Material")) return false;
    if (begins(unindented(line), "material") && unindented(line).size() >= 9 &&
        unindented(line).substr(9) == "Preview") {
      return false;
    }
    for (const std::string& name : names) {
      if (endsIn(line, name)) return true;
    }
    return false;
  };
  error = run([&] {
    std::string line = in.line();
    while (!holds(line, "weld")) {
      out.push_back(line);
      line = in.line();
    }
    while (holds(line, "weld")) {
      out.push_back(line);
      line = in.line();
    }
    for (;;) {
      while (goes(line)) {
        do line = in.line();
        while (!isBlockEnd(line));
      }
      out.push_back(line);
      if (in.atEnd()) return;
      line = in.line();
    }
  });
}

void PlainConversion::addMaterials(const std::vector<std::string>& names) {
  PlainText in(text);
  bool inFigure = false;
  bool added = false;
  bool ended = false;
  error = run([&] {
    while (!ended) {
      const std::string line = in.line();
      const bool mode = inFigure && holds(line, "displayMode");
      if (inFigure && !added && (mode || begins(line, "\tmaterial"))) {
        for (const std::string& name : names) out.push_back("+" + name);
        added = true;
      }
      out.push_back(line);
      ended = mode;
      if (unindented(line) == "figure") inFigure = true;
    }
    while (!in.atEnd()) out.push_back(in.line());
  });
}

void PlainConversion::figureSections() {
  PlainText in(text);
  enum { figure, behind, settings } range = figure;
  bool kept = true;
  bool first = true;
  bool geometry = false;
  while (!in.atEnd()) {
    const std::string line = in.line();
    const char c = line.empty() ? ' ' : line[0];
    if (c != ' ' && c != '\t' && c != '{' && c != '}') {
      if (geometry) range = behind;
      geometry = false;
      first = false;
      if (begins(line, "doc")) range = settings;
      kept = range == figure && line != "actor UNIVERSE";
      if (kept && !begins(line, "figureResFile")) {
        kept = !begins(line, "prop GROUND") && !holds(line, "LIGHT") && !holds(line, "CAMERA");
      }
      if (range == settings && line == "actor UNIVERSE") range = figure;
    }
    if (kept && !first && holds(line, "setGeom")) geometry = true;
    if (kept || c == '}') out.push_back(line);
  }
}

void PlainConversion::materialLibrary() {
  PlainText in(text);
  error = run([&] {
    while (in.field() != "figure") {
    }
    for (;;) {
      const std::string field = in.field();
      if (holds(field, "displayMode")) return;
      if (begins(field, "material")) {
        out.push_back("newmtl " + (field.size() < 10 ? "" : field.substr(9)));
        continue;
      }
      const auto blank = field.find(' ');
      const std::string key = field.substr(0, blank).substr(0, 2);
      const std::string values = blank == std::string::npos ? "" : field.substr(blank);
      if (key == "Kd" || key == "Ka" || key == "Ks" || key == "Ns") out.push_back(key + values);
      if (holds(field, "NO_MAP")) continue;
      if (key == "te") out.push_back("map_Kd " + mapName(field));
      if (key == "bu" && !holds(field, "Strength")) out.push_back("map_Bump " + mapName(field));
    }
  });
}

}  // namespace norvik::fuzz
