#include "workshop/play.h"

#include <memory>
#include <optional>

namespace norvik::obj {

namespace {

using graphics::Point;

constexpr std::size_t kDotColour = 1;

Point pointOf(front::Mouse mouse) {
  return {mouse.x, mouse.y};
}

/// The hand that draws. A band is drawn exclusive-or, so that drawing it again takes it away; the
/// one on view when the button comes up stays.
class Hand {
 public:
  explicit Hand(front::PictureBox& picture) : picture_(picture) {}

  void press(front::Mouse mouse) {
    corner_.reset();
    end_.reset();
    if (mouse.button == front::MouseButton::left) corner_ = pointOf(mouse);
  }

  void move(front::Mouse mouse) {
    if (mouse.button == front::MouseButton::right) {
      picture_.surface().dot(pointOf(mouse), graphics::paletteColour(kDotColour));
    } else if (mouse.button == front::MouseButton::left && corner_) {
      toggleBand();
      end_ = pointOf(mouse);
      toggleBand();
    } else {
      return;
    }
    picture_.refresh();
  }

  void release() {
    corner_.reset();
    end_.reset();
  }

 private:
  void toggleBand() {
    if (!end_) return;
    graphics::Surface& surface = picture_.surface();
    surface.setPenMode(graphics::PenMode::exclusiveOr);
    surface.box(*corner_, *end_, graphics::kWhite);
    surface.setPenMode(graphics::PenMode::copy);
  }

  front::PictureBox& picture_;
  std::optional<Point> corner_;
  std::optional<Point> end_;
};

void startToPlay(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  workshop.session.load(form);
  workshop.playing = true;
  for (front::Control* control : form.controls()) {
    control->setVisible(control == &form.LabelPlay || control == &form.LabelBoss);
  }
}

/// The pictures that the boss's ones take the place of, as they were.
struct Covered {
  bool zoom = false;
  bool plan = false;
  bool view3D = false;
};

void hideFromBoss(Workshop& workshop, Covered& covered) {
  front::FormOBJ& form = workshop.form;
  if (!form.ImageBoss.visible()) {
    covered = {form.PictureZoom.visible(), form.PictureOBJViewer.visible(),
               form.PictureObjViewer2.visible()};
  }
  workshop.closeMagnifier();
  form.PictureZoom.hide();
  form.PictureOBJViewer.hide();
  form.PictureObjViewer2.hide();
  form.ImageBoss.show();
  form.ImageRDS.show();
  form.LabelBoss.setCaption("Render");
  form.LabelPlay.setCaption("Mesh");
}

/// A click on the boss's pictures: the work as it was.
void uncover(Workshop& workshop, const Covered& covered) {
  front::FormOBJ& form = workshop.form;
  form.ImageBoss.hide();
  form.ImageRDS.hide();
  form.LabelBoss.setCaption("Boss Button");
  form.LabelPlay.setCaption("PLAY");
  form.PictureZoom.setVisible(covered.zoom);
  form.PictureOBJViewer.setVisible(covered.plan);
  form.PictureObjViewer2.setVisible(covered.view3D);
}

void play(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  workshop.closeMagnifier();
  form.ImageBoss.hide();
  form.ImageRDS.hide();
  form.LabelBoss.setCaption("Boss Button");
  form.LabelPlay.setCaption("PLAY");
  form.PictureZoom.clear();
  form.PictureZoom.show();
}

void wireHand(front::PictureBox& picture) {
  const auto hand = std::make_shared<Hand>(picture);
  picture.pressed.add([hand](front::Mouse mouse) { hand->press(mouse); });
  picture.moved.add([hand](front::Mouse mouse) { hand->move(mouse); });
  picture.released.add([hand](front::Mouse) { hand->release(); });
}

}  // namespace

void wirePlay(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  workshop.session.opening.MenuPlay.clicked.add([&workshop] { startToPlay(workshop); });
  const auto covered = std::make_shared<Covered>();
  form.LabelBoss.clicked.add([&workshop, covered] { hideFromBoss(workshop, *covered); });
  for (front::Image* picture : {&form.ImageBoss, &form.ImageRDS}) {
    picture->clicked.add([&workshop, covered] { uncover(workshop, *covered); });
  }
  form.LabelPlay.clicked.add([&workshop] { play(workshop); });
  form.LabelPlay.released.add([&workshop](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::right) {
      workshop.session.front.messageBox("Click and drag in the white window...", "Note",
                                        front::kOk);
    }
  });
  wireHand(form.PictureZoom);
}

}  // namespace norvik::obj
