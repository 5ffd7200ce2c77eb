#include "mesh/colour_book.h"

#include "mesh/obj_number.h"
#include "text/columns.h"

#include <algorithm>
#include <array>

namespace norvik::obj {

namespace {

constexpr double kColours = 254;
constexpr double kMost = 255;

unsigned drawPart(std::mt19937& random) {
  const double fraction = static_cast<double>(random() - std::mt19937::min()) /
                          (static_cast<double>(std::mt19937::max()) + 1);
  return static_cast<unsigned>(kColours * fraction) + 1;
}

front::Colour draw(std::mt19937& random) {
  const unsigned red = drawPart(random);
  const unsigned green = drawPart(random);
  const unsigned blue = drawPart(random);
  return front::colourOf(red, green, blue);
}

/// Five percent of either colour's number.
bool areNear(front::Colour one, front::Colour other) {
  constexpr front::Colour kShare = 20;
  const auto [low, high] = std::minmax(one, other);
  return (high - low) * kShare <= high;
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
  constexpr int kMostAnew = 100;
  front::Colour colour = draw(random);
  for (int anew = 0; anew < kMostAnew && isNearAnother(colour); ++anew) colour = draw(random);
  const std::string entry = std::string{line} + "*" + std::to_string(graphics::redOf(colour)) +
                            " " + std::to_string(graphics::greenOf(colour)) + " " +
                            std::to_string(graphics::blueOf(colour));
  entries_.add(entry);
  note(entry);
  return colour;
}

bool ColourBook::isNearAnother(front::Colour colour) const {
  return std::any_of(colours_.begin(), colours_.end(),
                     [colour](const auto& known) { return areNear(colour, known.second); });
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
