#include "obj/surgery/merge_lines.h"

#include "mesh/obj_number.h"
#include "obj/surgery/overlays.h"
#include "text/columns.h"
#include "text/number_text.h"
#include "workshop/view_scale.h"

#include <algorithm>

namespace norvik::obj {

namespace {

/// Takes a word off the front, with the blanks before it.
std::string_view takeWord(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  const std::string_view word = text::before(text, " ");
  text.remove_prefix(word.size());
  return word;
}

/// The view's pixels to a unit of the mesh.
double pixelsToUnit(const front::FormOBJ& form) {
  constexpr double kDesignTwips = 15;
  return static_cast<double>(form.PictureOBJViewer.box().width) * kDesignTwips / kTwipsPerPixel;
}

std::string raised(std::string_view index, std::size_t by) {
  const double sum = leadingNumber(index) + static_cast<double>(by);
  return std::string{text::trimmed(text::numberText(toSingle(sum)))};
}

}  // namespace

VertexShift::VertexShift(front::FormOBJ& form) {
  const front::Box& overlay = form.PictureAddObjFront.box();
  const front::Box& picture = form.PictureObjViewer2.box();
  const double unit = pixelsToUnit(form);
  const Decimal two(2);
  const Decimal pixels = Decimal(static_cast<double>(overlay.left)) -
                         Decimal(static_cast<double>(kOverlayLeft)) +
                         Decimal(static_cast<double>(overlay.width)) / two -
                         Decimal(static_cast<double>(picture.width)) / two;
  across_ = pixels / Decimal(unit);
  down_ = static_cast<double>(picture.height - overlay.height - overlay.top) / unit;
}

std::string VertexShift::shiftedX(std::string_view x) const {
  const bool negative = text::begins(x, "-");
  const Decimal number(x);
  const std::string moved = (negative ? number - across_ : number + across_).text();
  return text::holds(moved, "-") ? "-0" + moved.substr(1) : "0" + moved;
}

std::string VertexShift::shiftedY(std::string_view y) const {
  return std::string{text::trimmed(text::numberText(toSingle(leadingNumber(y) + down_)))};
}

std::string VertexShift::line(std::string_view record) const {
  constexpr std::size_t kBehindV = 2;
  std::string_view rest = text::from(text::trimmed(record), kBehindV);
  const std::string_view x = takeWord(rest);
  const std::string_view y = takeWord(rest);
  return "v " + shiftedX(x) + " " + shiftedY(y) + " " + std::string{text::trimmed(rest)};
}

std::string raisedFace(std::string_view face, std::size_t byVertices, std::size_t byTexturePoints) {
  constexpr std::size_t kBehindF = 2;
  std::string line = "f";
  std::string_view rest = text::from(text::trimmed(face), kBehindF);
  for (;;) {
    const std::string_view corner = takeWord(rest);
    if (corner.empty()) return line;
    line.append(" ").append(raised(text::before(corner, "/"), byVertices));
    if (!text::holds(corner, "/")) continue;
    const std::string_view texture = text::before(text::after(corner, "/"), "/");
    if (!texture.empty()) line.append("/").append(raised(texture, byTexturePoints));
  }
}

std::string texturePointLine(std::string_view record) {
  return "vt " + std::string{text::trimmed(text::before(record, "*"))} + " " +
         std::string{text::trimmed(text::after(record, "*"))};
}

}  // namespace norvik::obj
