#include "mesh/colour_book.h"

#include "mesh/obj_number.h"
#include "text/columns.h"

#include <algorithm>
#include <array>

namespace norvik::obj {

namespace {

constexpr double kColours = 254;
constexpr double kMost = 255;

unsigned draw(std::mt19937& random) {
  const double fraction = static_cast<double>(random() - std::mt19937::min()) /
                          (static_cast<double>(std::mt19937::max()) + 1);
  return static_cast<unsigned>(kColours * fraction) + 1;
}

}  // namespace

ColourBook::ColourBook(front::ListBox& entries) : entries_(entries) {
  for (const std::string& entry : entries.items()) note(entry);
}

void ColourBook::note(std::string_view entry) {
  colours_[std::string{text::before(entry, "*")}] = colourOfEntry(entry);
}

std::optional<front::Colour> ColourBook::find(std::string_view line) const {
  const auto found = colours_.find(line);
  if (found == colours_.end()) return std::nullopt;
  return found->second;
}

front::Colour ColourBook::findOrDraw(std::string_view line, std::mt19937& random) {
  if (const auto known = find(line)) return *known;
  const unsigned red = draw(random);
  const unsigned green = draw(random);
  const unsigned blue = draw(random);
  const std::string entry = std::string{line} + "*" + std::to_string(red) + " " +
                            std::to_string(green) + " " + std::to_string(blue);
  entries_.add(entry);
  note(entry);
  return front::colourOf(red, green, blue);
}

front::Colour colourOfEntry(std::string_view entry) {
  std::string_view rest = text::after(entry, "*");
  std::array<unsigned, 3> parts{};
  for (unsigned& part : parts) {
    part = static_cast<unsigned>(std::clamp(leadingNumber(text::before(rest, " ")), 0.0, kMost));
    rest = text::holds(rest, " ") ? text::after(rest, " ") : std::string_view{};
  }
  return front::colourOf(parts[0], parts[1], parts[2]);
}

graphics::Material diffuseOf(front::Colour colour) {
  constexpr float kWhole = 255;
  return {static_cast<float>(graphics::redOf(colour)) / kWhole,
          static_cast<float>(graphics::greenOf(colour)) / kWhole,
          static_cast<float>(graphics::blueOf(colour)) / kWhole};
}

}  // namespace norvik::obj
