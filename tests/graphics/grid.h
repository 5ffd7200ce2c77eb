#pragma once
// Surfaces as rows of characters.

#include "graphics/surface.h"

#include <ostream>
#include <string>
#include <vector>

namespace norvik::graphics {

inline constexpr Colour kPaper = 0x102030;
inline constexpr Colour kInk = 0xC04080;

/// Rows from the top: '.' for the paper, '#' for the ink, '?' for anything else.
struct Grid {
  std::vector<std::string> rows;
  bool operator==(const Grid&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Grid& grid) {
  for (const std::string& row : grid.rows) out << '\n' << row;
  return out;
}

inline Grid gridOf(const Surface& surface) {
  Grid grid;
  for (int y = 0; y < surface.height(); ++y) {
    std::string row;
    for (int x = 0; x < surface.width(); ++x) {
      const Colour colour = surface.pixel({x, y});
      row += colour == kPaper ? '.' : colour == kInk ? '#' : '?';
    }
    grid.rows.push_back(row);
  }
  return grid;
}

}  // namespace norvik::graphics
