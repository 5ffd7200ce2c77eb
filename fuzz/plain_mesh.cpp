#include "plain_mesh.h"

#include "plain_text.h"
#include "text/number_text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace norvik::fuzz {

namespace {

using text::value;

/// A read ends with one of these.
enum Error { overflow = 6, subscript = 9 };

std::string mid(const std::string& text, std::size_t column) {
  return column > text.size() ? "" : text.substr(column - 1);
}
std::size_t inStr(const std::string& text, const std::string& what) {
  return text.find(what) + 1;
}
bool begins(const std::string& text, const std::string& what) {
  return text.substr(0, what.size()) == what;
}

/// The number that a text begins with, up to a blank or tab behind it.
double number(std::string text) {
  while (!text.empty() && (text[0] == ' ' || text[0] == '\t')) text.erase(0, 1);
  return value(text.substr(0, text.find_first_of(" \t")));
}
float single(const std::string& text) {
  const auto result = static_cast<float>(number(text));
  if (std::isinf(result)) throw overflow;
  return result;
}

std::string record(std::string text, std::size_t length) {
  text.resize(length, ' ');
  return text;
}

class Reader {
 public:
  explicit Reader(double view) : view_(view) {}

  MeshReading reading;

  void line(std::string text) {
    if (begins(text, " ")) text = mid(text, 2);
    if (begins(text, "v\t")) text = "v " + mid(text, 3);
    if (begins(text, "vt\t")) text = "vt " + mid(text, 4);
    if (begins(text, "vt")) return texturePoint(mid(text, 4));
    if (begins(text, "g")) return named(text, mid(text, 3), reading.groups);
    if (begins(text, "use")) return named(text, mid(text, 8), reading.materials);
    if (begins(text, "v ")) return vertex(begins(text, "v  ") ? "v " + mid(text, 4) : text);
    if (begins(text, "fo")) text = "f" + mid(text, 3);
    if (begins(text, "f\t")) text = "f " + mid(text, 3);
    if (begins(text, "f ")) face(text);
  }

  void boundsMustHaveExtents() const {
    for (const float bound : {reading.biggestX, reading.smallestX, reading.biggestY}) {
      if (!std::isfinite(static_cast<float>(static_cast<double>(bound) * view_))) throw overflow;
    }
  }

 private:
  void texturePoint(std::string text) {
    if (begins(text, " ")) text = mid(text, 2);
    ++reading.texCount;
    const std::size_t blank = inStr(text, " ");
    const float u = single(blank == 0 ? text : text.substr(0, blank - 1));
    const float v = single(blank == 0 ? "" : mid(text, blank + 1));
    reading.texturePoints += record(text::numberText(u) + "*" + text::numberText(v), 50);
  }

  void named(const std::string& text, const std::string& name, std::vector<std::string>& names) {
    reading.faces += record(text, 500);
    reading.recordExtra += 1;
    bool known = false;
    for (const std::string& entry : names) {
      if (entry == name) known = true;
    }
    if (!known) names.push_back(name);
  }

  void vertex(std::string text) {
    reading.vertexRecords += record(text, 50);
    if (inStr(text, "-") != 3) text = mid(text, 4);
    bool shortNegative = false;
    if (inStr(text, "-") == 3) {
      if (inStr(text, ".") == 4) shortNegative = true;
      text = mid(text, 3);
    }
    std::size_t blank = inStr(text, " ");
    std::string x = blank == 0 ? text : text.substr(0, blank - 1);
    text = blank == 0 ? "" : mid(text, blank + 1);
    if (begins(text, " ")) text = mid(text, 2);
    if (shortNegative) x = "-0." + (x.size() > 3 ? x.substr(3, x.size() - 3) : "");
    blank = inStr(text, " ");
    const std::string y = blank == 0 ? text : text.substr(0, blank - 1);
    const std::string z = blank == 0 ? "" : mid(text, blank + 1);
    const float xValue = single(x);
    const float yValue = single(y);
    const float zValue = single(z);
    reading.biggestX = std::max(reading.biggestX, xValue);
    reading.smallestX = std::min(reading.smallestX, xValue);
    reading.biggestY = std::max(reading.biggestY, yValue);
    reading.vertices.push_back({xValue, yValue, zValue});
  }

  void face(const std::string& text) {
    reading.faces += record(text, 500);
    reading.faceCount += 1;
    const std::vector<std::string> slots = tokens(mid(text.substr(0, 500), 3));
    std::size_t corner = 0;
    std::vector<std::array<float, 3>> corners;
    for (const std::string& slot : slots) {
      const double index = std::nearbyint(slot.empty() ? 0 : number(slot));
      if (!(index >= 1) || index > static_cast<double>(reading.vertices.size())) throw subscript;
      const auto at = reading.vertices[static_cast<std::size_t>(index) - 1];
      mustBeOnScreen(at, corner == 0 ? 36 : view_);
      // The read of these few faces never comes to the thinning.
      if (corner < 3) ++reading.displayed;
      ++corner;
    }
  }

  /// With square views a unit is as long across and down, but for the first corner, whose places
  /// down are reckoned by themselves.
  void mustBeOnScreen(const std::array<float, 3>& at, double unitDown) const {
    const auto [x, y, z] = at;
    mustBePlace(view_ * static_cast<double>(x));
    mustBePlace(view_ * static_cast<double>(z));
    mustBePlace(unitDown * static_cast<double>(y));
    mustBePlace(unitDown * static_cast<double>(z));
  }

  void mustBePlace(double scaled) const {
    constexpr double kMost = std::numeric_limits<int>::max();
    if (!(std::fabs(scaled + view_ / 2) < kMost)) throw overflow;
    if (!(std::fabs(view_ - scaled) < kMost)) throw overflow;
  }

  static std::vector<std::string> tokens(std::string text) {
    std::vector<std::string> slots;
    std::size_t count = 0;
    for (std::size_t blank = 1; blank != 0;) {
      std::size_t end = inStr(text, "/");
      if (end == 0) end = inStr(text, " ");
      if (end == 0) end = text.size() + 1;
      std::string token = text.substr(0, end - 1);
      if (begins(token, "-")) token = text::numberText(static_cast<float>(number(token) + 1));
      if (!token.empty()) {
        slots.resize(count + 1);
        slots[count] = token;
      }
      ++count;
      blank = inStr(text, " ");
      if (blank != 0) text = mid(text, blank + 1);
    }
    return slots;
  }

  double view_;
};

std::string raised(const std::string& y) {
  const std::size_t point = inStr(y, ".");
  const std::string whole = y.substr(0, point);
  const std::string fraction = mid(y, point + 1);
  double divisor = 1;
  for (std::string rest = fraction; inStr(rest, "0") == 1; rest = mid(rest, 2)) divisor *= 10;
  const auto result = static_cast<float>(number(whole) + number(fraction) / divisor);
  if (!std::isfinite(result)) throw overflow;
  std::string printed = text::numberText(result);
  if (printed[0] == ' ') printed.erase(0, 1);
  return printed;
}

std::string raisedLine(const std::string& line) {
  std::string rest = mid(line, 3);
  std::array<std::string, 2> words;
  for (std::string& word : words) {
    const std::size_t blank = inStr(rest, " ");
    word = blank == 0 ? rest : rest.substr(0, blank);
    rest = mid(rest, word.size() + 1);
  }
  return "v " + words[0] + raised(words[1]) + " " + rest;
}

MeshReading readLines(const std::vector<std::string>& lines, double view) {
  Reader reader(view);
  try {
    for (const std::string& line : lines) reader.line(line);
    reader.reading.toTheEnd = true;
    reader.boundsMustHaveExtents();
  } catch (const Error error) {
    reader.reading.error = error;
  }
  return reader.reading;
}

}  // namespace

MeshReading plainMesh(const std::string& text, double view) {
  const std::vector<std::string> lines = linesOf(text);
  MeshReading reading = readLines(lines, view);
  if (reading.error != 0) return reading;
  if (reading.biggestY < 0.1F) {
    std::vector<std::string> raisedLines;
    try {
      for (const std::string& line : lines) {
        raisedLines.push_back(begins(line, "v ") ? raisedLine(line) : line);
      }
    } catch (const Error error) {
      reading.error = error;
      reading.param = withLineEnds(raisedLines);
      return reading;
    }
    reading = readLines(raisedLines, view);
    reading.param = withLineEnds(raisedLines);
  }
  if (reading.error == 0) reading.toldAsMorph = reading.faces.size() < 1000;
  return reading;
}

}  // namespace norvik::fuzz
