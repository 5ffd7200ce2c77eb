#pragma once
// What of a face goes into the display list.

#include "mesh/mesh.h"

namespace norvik::obj {

/// Writes the display list from its first entry on. From 40000 triangles on only every other face
/// goes in.
class DisplayWriter {
 public:
  explicit DisplayWriter(DisplayList& list) : list_(list) {}

  void beginFace();
  /// The next corner of the face, in view units; the fourth and later ones stay out.
  void addCorner(const Position& at);

 private:
  DisplayList& list_;
  std::size_t next_ = 0;  ///< entry
  int corners_ = 0;       ///< of this face that may still go in
};

}  // namespace norvik::obj
