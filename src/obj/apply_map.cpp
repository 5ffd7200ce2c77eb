#include "obj/apply_map.h"

#include "mesh/obj_number.h"
#include "text/columns.h"
#include "text/line_reader.h"
#include "workshop/map_scale.h"

namespace norvik::obj {

namespace {

constexpr std::string_view kPoints = "I:\\Poser4\\UV.txt";

/// A line is two numbers with a "*" or a blank between them.
void plot(Workshop& workshop) {
  text::LineReader in(workshop.session.disk, kPoints);
  front::PictureBox& picture = workshop.form.PictureUVMap;
  const MapScale scale(workshop.form, picture);
  workshop.showAlone(picture);
  while (!in.atEnd()) {
    const std::string line = text::replaced(in.line(), '*', ' ');
    const std::string_view point = text::trimmed(line);
    if (point.empty()) continue;
    const std::string_view u = text::before(point, " ");
    const double v = leadingNumber(text::from(point, u.size() + 1));
    picture.surface().dot(scale.at(leadingNumber(u), v), front::kBlack);
  }
  picture.refresh();
}

}  // namespace

void wireApplyMap(Workshop& workshop) {
  workshop.form.LabelApplyMap.released.add([&workshop](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::right) {
      workshop.session.front.messageBox("Use this to apply the existing texture map.", "Note",
                                        front::kOk);
    } else if (!workshop.reading) {
      plot(workshop);
    }
  });
}

}  // namespace norvik::obj
