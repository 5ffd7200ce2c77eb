#include "obj/sec_map.h"

#include "mesh/face_corners.h"
#include "mesh/face_pace.h"
#include "mesh/mesh_store.h"
#include "mesh/obj_number.h"
#include "obj/map_sheet.h"
#include "text/columns.h"
#include "text/line_reader.h"
#include "workshop/map_scale.h"
#include "workshop/reading.h"

namespace norvik::obj {

namespace {

class SecMapPass {
 public:
  explicit SecMapPass(Workshop& workshop)
      : workshop_(workshop),
        picture_(workshop.form.PictureSecMap),
        scale_(workshop.form, picture_),
        faces_(workshop.session.disk, workshop.session.opening.inProgramFolder("\\groupface.txt")),
        points_(recordsOf(workshop.session, "\\groupvertex.txt", kTextureRecordLength)) {}

  /// Whether it came to its end: not when the form was left meanwhile.
  bool run() {
    const auto departures = workshop_.departures;
    FacePace pace(workshop_.session.front);
    while (!faces_.atEnd()) {
      const std::string_view line = faces_.line();
      if (!isFace(line)) continue;
      draw(line);
      pace.afterFace();
      if (workshop_.departures != departures) return false;
    }
    return true;
  }

 private:
  /// Groups and materials are named between the faces; a name does not matter here.
  static bool isFace(std::string_view line) {
    return text::begins(line, "f") && !text::holds(line, "mtl");
  }

  /// A corner without a texture index ends the face; a point that is not there is at 0.
  void draw(std::string_view line) {
    std::optional<graphics::Point> last;
    for (FaceCorners corners(line); const auto corner = corners.next();) {
      const std::size_t index = indexNumber(texturePart(*corner));
      if (index == 0) return;
      const auto here = pointAt(index);
      if (last) picture_.surface().line(*last, here, front::kBlack);
      last = here;
    }
  }

  graphics::Point pointAt(std::size_t index) {
    const std::string_view record = points_.get(index);
    std::string_view numbers = text::from(record, text::before(record, " ").size() + 2);
    while (text::begins(numbers, " ")) numbers.remove_prefix(1);
    const std::string_view u = text::before(numbers, " ");
    return scale_.atTurned(leadingNumber(u), leadingNumber(text::from(numbers, u.size() + 1)));
  }

  Workshop& workshop_;
  front::PictureBox& picture_;
  MapScale scale_;
  text::LineReader faces_;
  text::RecordReader points_;
};

void drawSecMap(Workshop& workshop) {
  if (workshop.reading) return;
  front::FormOBJ& form = workshop.form;
  SecMapPass pass(workshop);
  workshop.showAlone(form.PictureSecMap);
  form.PictureSecMap.clear();
  const Reading reading(workshop);
  workshop.session.hourglass(true);
  const bool drawn = pass.run();
  workshop.session.hourglass(false);
  if (!drawn) return;
  form.PictureSecMap.refresh();
  form.TextMapSizeSec.setText({});
  form.TextMapSizeSec.show();
  form.setFocus(form.TextMapSizeSec);
}

}  // namespace

void wireSecMap(Workshop& workshop) {
  workshop.form.LabelSecMap.clicked.add([&workshop] { drawSecMap(workshop); });
}

}  // namespace norvik::obj
