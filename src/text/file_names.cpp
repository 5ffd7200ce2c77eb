#include "text/file_names.h"

#include "text/columns.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace norvik::text {

namespace {

constexpr unsigned kFirstBeyondAscii = 0x80;
constexpr unsigned kTailBits = 6;
constexpr unsigned kTailMask = 0x3F;

unsigned byteAt(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

/// Takes one character of UTF-8 off the front; nothing, if what stands there is none.
std::optional<char32_t> takeCharacter(std::string_view& text) {
  struct Form {
    unsigned lead, mask, length;
    char32_t least;
  };
  constexpr std::array<Form, 4> kForms{{{0x00, 0x80, 1, 0},
                                        {0xC0, 0xE0, 2, 0x80},
                                        {0xE0, 0xF0, 3, 0x800},
                                        {0xF0, 0xF8, 4, 0x10000}}};
  const unsigned lead = byteAt(text, 0);
  const auto* const form = std::find_if(
      kForms.begin(), kForms.end(), [lead](const Form& f) { return (lead & f.mask) == f.lead; });
  if (form == kForms.end() || text.size() < form->length) return std::nullopt;
  char32_t character = lead & ~form->mask;
  for (unsigned i = 1; i < form->length; ++i) {
    const unsigned tail = byteAt(text, i);
    if ((tail & ~kTailMask) != kFirstBeyondAscii) return std::nullopt;
    character = (character << kTailBits) | (tail & kTailMask);
  }
  constexpr char32_t kLast = 0x10FFFF;
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < form->least || character > kLast || surrogate) return std::nullopt;
  text.remove_prefix(form->length);
  return character;
}

/// A stretch of capitals, with what lies between one and its small letter. In a stretch of pairs
/// every other character is a capital, beginning with the first.
struct Capitals {
  char32_t first = 0;
  char32_t last = 0;
  int toSmall = 0;
  bool pairs = false;
};

constexpr std::array<Capitals, 17> kCapitals{{{U'A', U'Z', 0x20},
                                              {0xC0, 0xD6, 0x20},
                                              {0xD8, 0xDE, 0x20},
                                              {0x100, 0x12E, 1, true},
                                              {0x132, 0x136, 1, true},
                                              {0x139, 0x147, 1, true},
                                              {0x14A, 0x176, 1, true},
                                              {0x178, 0x178, 0xFF - 0x178},
                                              {0x179, 0x17D, 1, true},
                                              {0x386, 0x386, 0x26},
                                              {0x388, 0x38A, 0x25},
                                              {0x38C, 0x38C, 0x40},
                                              {0x38E, 0x38F, 0x3F},
                                              {0x391, 0x3A1, 0x20},
                                              {0x3A3, 0x3AB, 0x20},
                                              {0x400, 0x40F, 0x50},
                                              {0x410, 0x42F, 0x20}}};

char32_t folded(char32_t character) {
  for (const Capitals& capitals : kCapitals) {
    if (character < capitals.first || character > capitals.last) continue;
    if (capitals.pairs && (character - capitals.first) % 2 != 0) break;
    return static_cast<char32_t>(static_cast<int>(character) + capitals.toSmall);
  }
  return character;
}

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < kFirstBeyondAscii; });
}

}  // namespace

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    if (!takeCharacter(text)) return false;
  }
  return true;
}

std::u32string foldedName(std::string_view name) {
  const bool bytes = !isUtf8(name);
  std::u32string characters;
  characters.reserve(name.size());
  while (!name.empty()) {
    char32_t character = byteAt(name, 0);
    if (bytes) {
      name.remove_prefix(1);
    } else {
      character = *takeCharacter(name);
    }
    characters += folded(character);
  }
  return characters;
}

bool sameName(std::string_view left, std::string_view right) {
  if (isAscii(left) && isAscii(right)) return equalIgnoringCase(left, right);
  return foldedName(left) == foldedName(right);
}

void sortNames(std::vector<std::string>& names) {
  std::vector<std::pair<std::u32string, std::string>> folded;
  folded.reserve(names.size());
  for (std::string& name : names) folded.emplace_back(foldedName(name), std::move(name));
  std::sort(folded.begin(), folded.end());
  names.clear();
  for (auto& [key, name] : folded) names.push_back(std::move(name));
}

}  // namespace norvik::text
