#pragma once
// The vertices of the view without 3D.

#include "mesh/vertex_text.h"

#include <cstddef>
#include <string>
#include <vector>

namespace norvik::obj {

/// Two lists of entries "x@y^z". The first one holds the vertices up to 32000 by their own number;
/// the second one the rest, laid out for the corners of a face behind its first, which look for
/// vertex n at n - 31999. The first corner looks at n - 32000 and so finds the vertex before it;
/// nobody sees that, since a first corner is not drawn.
class FallBackVertices {
 public:
  FallBackVertices();

  void add(const VertexTexts& texts);

  /// Both throw FileError subscriptOutOfRange (9) for an index without an entry.
  Position firstCorner(std::size_t index) const;
  Position laterCorner(std::size_t index) const;

 private:
  using Entries = std::vector<std::string>;
  static Position entryAt(const Entries& entries, std::size_t index);

  Entries first_;
  Entries second_;
};

}  // namespace norvik::obj
