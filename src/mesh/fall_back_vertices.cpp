#include "mesh/fall_back_vertices.h"

#include "text/columns.h"
#include "text/file_error.h"

namespace norvik::obj {

namespace {

constexpr std::size_t kFirstHolds = 32000;
constexpr std::size_t kLaterOffset = kFirstHolds - 1;

}  // namespace

FallBackVertices::FallBackVertices() : first_(1) {}

void FallBackVertices::add(const VertexTexts& texts) {
  std::string entry{texts.x};
  entry.append("@").append(texts.y).append("^").append(texts.z);
  if (first_.size() <= kFirstHolds) {
    first_.push_back(std::move(entry));
    return;
  }
  if (second_.empty()) second_ = {std::string{}, first_.back()};
  second_.push_back(std::move(entry));
}

Position FallBackVertices::firstCorner(std::size_t index) const {
  return index > kFirstHolds ? entryAt(second_, index - kFirstHolds) : entryAt(first_, index);
}

Position FallBackVertices::laterCorner(std::size_t index) const {
  return index > kFirstHolds ? entryAt(second_, index - kLaterOffset) : entryAt(first_, index);
}

Position FallBackVertices::entryAt(const Entries& entries, std::size_t index) {
  if (index == 0 || index >= entries.size()) {
    throw text::FileError(text::ErrorNumber::subscriptOutOfRange);
  }
  const std::string_view entry = entries[index];
  const std::string_view rest = text::after(entry, "@");
  return positionOf({text::before(entry, "@"), text::before(rest, "^"), text::after(rest, "^")});
}

}  // namespace norvik::obj
