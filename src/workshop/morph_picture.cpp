#include "workshop/morph_picture.h"

#include "mesh/exponent_repair.h"
#include "mesh/mesh_store.h"
#include "mesh/obj_number.h"
#include "text/byte_reader.h"
#include "text/columns.h"
#include "text/number_text.h"
#include "workshop/view_scale.h"

namespace norvik::obj {

namespace {

constexpr std::uint64_t kTwoFaceRecords = 1000;  // bytes
constexpr std::size_t kGreen = 2;

/// Where a vertex goes. The dots have factors of their own, a hundred times those of the faces, and
/// are moved a little.
class DotScale {
 public:
  explicit DotScale(const front::FormOBJ& form)
      : width_(form.PictureObjViewer2.box().width),
        height_(form.PictureObjViewer2.box().height),
        factorX_(form.PictureOBJViewer.box().width * kDesignTwips / kTwipsPerPixel),
        factorY_(form.PictureOBJViewer.box().height * kDesignTwips / kTwipsPerPixel) {}

  graphics::Point at(double x, double y) const {
    constexpr double kShare = 6;
    constexpr double kShiftX = -0.008;
    constexpr double kShiftY = -0.004;
    const double across = width_ / kShare * (x * factorX_ + kShiftX * factorX_ / 2) + width_ / 2;
    const double down = height_ - (y * factorY_ + kShiftY * factorY_);
    return {pixelOf(across), pixelOf(down)};
  }

 private:
  static constexpr double kDesignTwips = 15;

  /// By way of its text, whose exponent form is read back as the map tools do it.
  static int pixelOf(double place) {
    return toPixel(leadingNumber(withoutExponent(text::numberText(static_cast<float>(place)))));
  }

  double width_;
  double height_;
  double factorX_;
  double factorY_;
};

/// A coordinate of a record; a negative one is its value plus 1.
double coordinate(std::string_view text) {
  const double number = leadingNumber(text);
  return text::begins(text, "-") ? number + 1 : number;
}

}  // namespace

bool isMorph(front::Session& session) {
  return session.disk.size(session.opening.inProgramFolder(kFaceFile)) < kTwoFaceRecords;
}

void showMorph(Workshop& workshop) {
  front::Session& session = workshop.session;
  session.front.messageBox("This is a morph obj -- no faces in the file.", "Note!", front::kOk);
  constexpr std::size_t kFirstOfX = 3;
  const DotScale scale(workshop.form);
  front::PictureBox& picture = workshop.form.PictureStore;
  text::ByteReader vertices(session.disk, session.opening.inProgramFolder(kVertexFile));
  for (;;) {
    const std::string_view record = vertices.read(kVertexRecordLength);
    if (record.size() < kVertexRecordLength) break;
    const std::string_view x = text::before(text::from(record, kFirstOfX), " ");
    const std::string_view rest = text::from(record, kFirstOfX + x.size() + 1);
    const std::string_view y = text::before(rest, " ");
    picture.surface().setPixel(scale.at(coordinate(x), coordinate(y)),
                               graphics::paletteColour(kGreen));
  }
  picture.refresh();
}

}  // namespace norvik::obj
