#include "workshop/fall_back_view.h"

#include "mesh/colour_book.h"
#include "mesh/face_pace.h"
#include "mesh/face_tokens.h"
#include "mesh/fall_back_vertices.h"
#include "mesh/obj_line.h"
#include "mesh/vertex_text.h"
#include "text/line_reader.h"
#include "workshop/reading.h"
#include "workshop/view_scale.h"

#include <span>

namespace norvik::obj {

namespace {

class FallBackPass {
 public:
  explicit FallBackPass(Workshop& workshop)
      : workshop_(workshop),
        groupColours_(workshop.form.ListGroupColors),
        materialColours_(workshop.form.ListMATColors),
        scale_(workshop.form) {}

  void run(std::string_view path) {
    const auto departures = workshop_.departures;
    FacePace pace(workshop_.session.front);
    LineNormaliser normalise;
    text::LineReader in(workshop_.session.disk, path);
    while (!in.atEnd()) {
      const ObjLine line = normalise(in.line());
      take(line);
      if (line.kind != LineKind::face) continue;
      if (!workshop_.Suppress) picture().refresh();
      pace.afterFace();
      if (workshop_.departures != departures) return;
    }
    picture().refresh();
  }

 private:
  front::PictureBox& picture() { return workshop_.form.PictureNoDX; }
  front::Colour& fill() { return workshop_.fillWithout3D; }

  void take(const ObjLine& line) {
    const front::FormOBJ& form = workshop_.form;
    if (line.kind == LineKind::group) {
      const auto colour = groupColours_.findOrDraw(line.text, workshop_.random);
      if (form.OptionColorGroups.value()) fill() = colour;
    } else if (line.kind == LineKind::material) {
      const auto colour = materialColours_.findOrDraw(line.text, workshop_.random);
      if (form.OptionColorMaterials.value()) fill() = colour;
    } else if (line.kind == LineKind::vertex) {
      vertices_.add(cut_(line.text));
    } else if (line.kind == LineKind::face) {
      readFaceTokens(line.text, indexes_);
      draw(indexes_);
    }
  }

  void draw(std::span<const std::size_t> indexes) {
    corners_.clear();
    if (indexes.empty()) return;
    // It must be there and have a place, but the second corner takes that place.
    scale_.firstFrontPoint(vertices_.firstCorner(indexes.front()));
    for (const std::size_t index : indexes.subspan(1)) {
      corners_.push_back(scale_.frontPoint(vertices_.laterCorner(index)));
    }
    if (workshop_.form.OptionNoColors.value()) fill() = graphics::paletteColour(kPlainFill);
    if (!corners_.empty()) picture().surface().polygon(corners_, fill());
  }

  Workshop& workshop_;
  ColourBook groupColours_;
  ColourBook materialColours_;
  ViewScale scale_;
  FallBackVertices vertices_;
  VertexCutter cut_;
  std::vector<std::size_t> indexes_;
  std::vector<graphics::Point> corners_;
};

void showWithout3D(Workshop& workshop) {
  if (workshop.reading) return;
  front::FormOBJ& form = workshop.form;
  form.PictureObjViewer2.hide();
  form.PictureOBJViewer.hide();
  form.PictureNoDX.clear();
  form.PictureNoDX.show();
  const Reading reading(workshop);
  workshop.session.hourglass(true);
  FallBackPass(workshop).run(workshop.session.opening.LabelOBJFileName.caption());
  workshop.session.hourglass(false);
}

}  // namespace

void wireFallBackView(Workshop& workshop) {
  workshop.form.released.add([&workshop](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::right) showWithout3D(workshop);
  });
}

}  // namespace norvik::obj
