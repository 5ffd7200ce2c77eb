#pragma once
// The colours of groups and materials.

#include "front/list_box.h"
#include "graphics/device3d.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <unordered_map>

namespace norvik::obj {

/// Texts by which something is looked up without making a string of the key.
struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const {
    return std::hash<std::string_view>{}(text);
  }
};

/// The entries of ListGroupColors or ListMATColors: a line of the mesh, "*", and red, green and
/// blue with single blanks between them. A line's colour is that of the last entry whose text in
/// front of its first "*" is the whole line, so that a line which holds a "*" never finds its own.
/// Entries are found by a hash; the list itself stays the record.
///
/// The cut tells groups apart by their colours' numbers alone, so a new colour keeps its distance
/// from those that are there, for as long as there is room.
class ColourBook {
 public:
  explicit ColourBook(front::ListBox& entries);

  std::optional<front::Colour> find(std::string_view line) const;
  /// The line's colour; one that has none draws each part from 1 to 254, anew up to a hundred times
  /// while its number lies within five percent of another line's, and adds its entry.
  front::Colour findOrDraw(std::string_view line, std::mt19937& random);

 private:
  void note(std::string_view entry);
  bool isNearAnother(front::Colour colour) const;

  front::ListBox& entries_;
  std::unordered_map<std::string, front::Colour, TextHash, std::equal_to<>> colours_;
};

/// The colour of an entry: the three numbers behind its first "*". A part that no colour has is 0
/// or 255, and so is one that is not there.
front::Colour colourOfEntry(std::string_view entry);

/// A colour as the 3D view takes it.
graphics::Material diffuseOf(front::Colour colour);

}  // namespace norvik::obj
