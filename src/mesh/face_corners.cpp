#include "mesh/face_corners.h"

#include "mesh/obj_number.h"
#include "text/columns.h"
#include "text/number_text.h"

namespace norvik::obj {

namespace {

constexpr std::size_t kFirstCorner = 3;

}  // namespace

FaceCorners::FaceCorners(std::string_view record) : rest_(text::from(record, kFirstCorner)) {}

std::optional<std::string_view> FaceCorners::next() {
  while (text::begins(rest_, " ")) rest_.remove_prefix(1);
  if (rest_.empty()) return std::nullopt;
  const std::string_view corner = text::before(rest_, " ");
  rest_.remove_prefix(corner.size());
  return corner;
}

std::string indexText(std::string_view index) {
  if (!text::begins(index, "-")) return std::string{index};
  const std::string text = text::numberText(static_cast<float>(leadingNumber(index) + 1));
  return std::string{text::trimmed(text)};
}

std::string_view vertexPart(std::string_view corner) {
  return text::before(corner, "/");
}

std::string_view texturePart(std::string_view corner) {
  const std::string_view behind = text::from(corner, vertexPart(corner).size() + 2);
  return text::before(behind, "/");
}

std::size_t indexNumber(std::string_view index) {
  return text::begins(index, "-") ? 0 : leadingIndex(index);
}

}  // namespace norvik::obj
