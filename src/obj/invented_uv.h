#pragma once
// The coordinates that Make UV has invented.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace norvik::obj {

/// A `vt` coordinate for each vertex that a face has reached; a vertex of several faces keeps that
/// of the last one.
class InventedUV {
 public:
  /// A vertex 0 is none.
  void set(std::size_t vertex, float u, float v);
  /// Hands out the lines in the order of the vertices; those that no face has reached are left out.
  void forEachLine(const std::function<void(std::string_view line)>& use) const;

 private:
  struct UV {
    float u = 0;
    float v = 0;
  };
  std::unordered_map<std::size_t, UV> points_;
};

}  // namespace norvik::obj
