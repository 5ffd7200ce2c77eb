#include "dials/renamed_line.h"

#include "dials/dial_names.h"
#include "text/columns.h"

namespace norvik::dials {

namespace {

constexpr std::string_view kReference = "GetStringRes";
constexpr std::string_view kName = "name";
/// The column at which the reference of a dial's line stands, behind three tabs and "name ".
constexpr std::size_t kDialColumn = 9;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// The number at the start of a text, one or two digits, the first of them not 0.
std::optional<int> shortNumber(std::string_view text) {
  if (text.empty() || !isDigit(text[0]) || text[0] == '0') return std::nullopt;
  const int first = text[0] - '0';
  const bool second = text.size() > 1 && isDigit(text[1]);
  return second ? first * 10 + (text[1] - '0') : first;
}

/// The number behind the comma of a dial's reference. Three characters are looked at: ",100)" is
/// dial 10, and what stands behind a number of two digits does not count.
std::optional<int> dialNumber(std::string_view text) {
  const std::string_view looked = text::leftmost(text, 3);
  if (looked.size() < 3 || looked[0] != ',') return std::nullopt;
  const auto number = shortNumber(looked.substr(1));
  return number && (isDigit(looked[2]) || looked[2] == ')') ? number : std::nullopt;
}

/// The number behind the comma of a body part's reference. Up to 99 nothing may stand behind the
/// bracket; from 100 on the digits alone count.
std::optional<int> partNumber(std::string_view text) {
  if (text::begins(text, ",10") && text.size() > 3 && text[3] >= '0' && text[3] <= '5') {
    return 100 + (text[3] - '0');
  }
  if (!text::begins(text, ",")) return std::nullopt;
  const auto number = shortNumber(text.substr(1));
  if (!number) return std::nullopt;
  const std::size_t digits = *number < 10 ? 1 : 2;
  return text.substr(1 + digits) == ")" ? number : std::nullopt;
}

/// The name with a number; nothing if there is none.
std::optional<std::string_view> named(std::span<const std::string_view> names,
                                      std::optional<int> number) {
  if (!number || *number > static_cast<int>(names.size())) return std::nullopt;
  return names[static_cast<std::size_t>(*number) - 1];
}

std::optional<std::string> friendlyLine(std::string_view line) {
  constexpr std::size_t kGroupOffset = 15;   // the last two digits of "1028"
  constexpr std::size_t kNumberOffset = 17;  // from the comma on
  const std::size_t place = text::column(line, kReference);
  if (place < 2) return std::nullopt;
  const std::string_view group = text::leftmost(text::from(line, place + kGroupOffset), 2);
  const std::string_view number = text::from(line, place + kNumberOffset);
  std::optional<std::string_view> name;
  if (group == "28") name = named(dialNames(), dialNumber(number));
  if (group == "24") name = named(partNames(), partNumber(number));
  if (!name) return std::nullopt;
  // The place alone decides the shape: a part's line that was reverted has the place of a dial's.
  const std::string_view shape = place == kDialColumn ? "\t\t\tname " : "\tname    ";
  return std::string{shape}.append(*name);
}

/// The name behind the keyword. Of a body part's line four characters are passed over, elsewhere
/// one, whatever they are.
std::string_view friendlyName(std::string_view line, std::size_t place) {
  const std::size_t blanks = place == 2 ? 4 : 1;
  return text::from(line, place + kName.size() + blanks);
}

std::optional<int> revertedPart(std::string_view name) {
  // The left hand has a quote behind its name here, so that its line stays friendly.
  constexpr std::string_view kLeftHand = "Left Hand";
  if (name == kLeftHand) return std::nullopt;
  if (name.ends_with('"') && text::withoutLast(name, 1) == kLeftHand) {
    return numberOf(partNames(), kLeftHand);
  }
  return numberOf(partNames(), name);
}

std::optional<std::string> resourceLine(std::string_view line) {
  const std::size_t place = text::column(line, kName);
  if (place < 2) return std::nullopt;
  const std::string_view name = friendlyName(line, place);
  if (const auto dial = numberOf(dialNames(), name)) {
    return "\t\t\tname GetStringRes(1028," + std::to_string(*dial) + ")";
  }
  if (const auto part = revertedPart(name)) {
    return "\tname   GetStringRes(1024," + std::to_string(*part) + ")";
  }
  return std::nullopt;
}

}  // namespace

std::string_view tokenOf(Direction direction) {
  return direction == Direction::toFriendly ? kReference : kName;
}

std::optional<std::string> renamedLine(Direction direction, std::string_view line) {
  return direction == Direction::toFriendly ? friendlyLine(line) : resourceLine(line);
}

}  // namespace norvik::dials
