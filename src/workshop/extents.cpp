#include "workshop/extents.h"

#include "mesh/obj_number.h"
#include "text/columns.h"
#include "text/number_text.h"
#include "workshop/view_scale.h"

#include <cmath>

namespace norvik::obj {

namespace {

/// An extent of the mesh in view units.
double inView(float extent, float pictureSize) {
  constexpr double kDesignTwips = 15;
  return static_cast<double>(extent) * static_cast<double>(pictureSize) * kDesignTwips /
         kTwipsPerPixel;
}

void setExtent(front::Label& label, double extent) {
  label.setCaption(text::trimmed(text::numberText(toSingle(extent))));
}

}  // namespace

void showExtents(front::FormOBJ& form, float biggestX, float smallestX, float biggestY) {
  const front::Box& picture = form.PictureObjViewer2.box();
  setExtent(form.LabelBiggestX,
            inView(biggestX, picture.width) + static_cast<double>(picture.width) / 2);
  setExtent(form.LabelSmallestX, std::fabs(inView(smallestX, picture.width)));
  setExtent(form.LabelBiggestY, inView(biggestY, picture.height));
}

}  // namespace norvik::obj
