#include "obj/surgery/lop_box.h"

#include "front/stoppable_pass.h"
#include "obj/surgery/lop_colours.h"
#include "obj/surgery/lop_pass.h"
#include "obj/surgery/waiting.h"
#include "text/rewrite_pass.h"
#include "workshop/reading.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace norvik::obj {

namespace {

using graphics::Point;

constexpr std::string_view kScratch = "\\Lop.txt";
constexpr front::Colour kBoxBlue = 0xFF0000;
constexpr int kBoxPen = 2;

/// The flat views as they are, put back at the end, however it comes, unless they are let go.
class StoredViews {
 public:
  explicit StoredViews(front::FormOBJ& form) : form_(form) {
    for (front::PictureBox* view : form_.flatViews()) surfaces_.push_back(view->surface());
  }
  StoredViews(const StoredViews&) = delete;
  StoredViews& operator=(const StoredViews&) = delete;
  ~StoredViews() {
    const auto views = form_.flatViews();
    for (std::size_t i = 0; i < surfaces_.size(); ++i) {
      views[i]->surface() = std::move(surfaces_.at(i));
      views[i]->refresh();
    }
  }

  void letGo() { surfaces_.clear(); }

 private:
  front::FormOBJ& form_;
  std::vector<graphics::Surface> surfaces_;
};

void switchLop(front::FormOBJ& form, bool on) {
  form.LopOn = on;
  if (on) {
    form.PictureLop.activate();
  } else {
    form.PictureLop.rest();
  }
}

/// The end of a cut, however it comes.
class EndOfCut {
 public:
  explicit EndOfCut(front::FormOBJ& form) : form_(form) {}
  EndOfCut(const EndOfCut&) = delete;
  EndOfCut& operator=(const EndOfCut&) = delete;
  ~EndOfCut() {
    form_.ListLop.clear();
    switchLop(form_, false);
  }

 private:
  front::FormOBJ& form_;
};

/// The box that is drawn on one of the flat views, and what comes of it.
class LopBox {
 public:
  explicit LopBox(Workshop& workshop) : workshop_(workshop), form_(workshop.form) {}

  void press(ViewMode view, front::Mouse mouse) {
    forget();
    if (!form_.LopOn || mouse.button != front::MouseButton::left) return;
    first_ = Point{mouse.x, mouse.y};
    LopView_ = view;
    stored_.emplace(workshop_.flatView(view).surface());
  }

  void move(ViewMode view, front::Mouse mouse) {
    if (!first_ || view != LopView_ || mouse.button != front::MouseButton::left) return;
    front::PictureBox& picture = workshop_.flatView(view);
    picture.surface() = *stored_;
    const Point second{mouse.x, mouse.y};
    // Upwards it is not seen, but it is a box all the same.
    if (second.y >= first_->y) picture.surface().box(*first_, second, kBoxBlue, kBoxPen);
    picture.refresh();
  }

  void release(ViewMode view, front::Mouse mouse) {
    if (!form_.LopOn) return forget();
    const Point second{mouse.x, mouse.y};
    const bool drawn = first_ && view == LopView_ && mouse.button == front::MouseButton::left;
    if (drawn) takeBoxAway();
    if (drawn && second != *first_) {
      const LopCorners box = sorted(*first_, second);
      forget();
      cut(view, box);
    } else {
      forget();
      paint(view, mouse);
    }
  }

  void toggle() {
    forget();
    switchLop(form_, !form_.LopOn);
  }

  void forget() {
    first_.reset();
    stored_.reset();
  }

 private:
  void takeBoxAway() {
    front::PictureBox& picture = workshop_.flatView(LopView_);
    picture.surface() = *stored_;
    picture.refresh();
  }

  void paint(ViewMode view, front::Mouse mouse);
  bool agreesToCut(ViewMode view, const LopCorners& box);
  void cut(ViewMode view, const LopCorners& box);
  void LopIt(ViewMode view, const LopCorners& box, const std::string& scratch);
  void save(const std::string& scratch);

  Workshop& workshop_;
  front::FormOBJ& form_;
  ViewMode LopView_ = ViewMode::front;
  std::optional<Point> first_;               ///< corner, while a box is drawn
  std::optional<graphics::Surface> stored_;  ///< the picture without the box
};

/// A click without a box: all that has the colour of the place, in that view.
void LopBox::paint(ViewMode view, front::Mouse mouse) {
  front::PictureBox& picture = workshop_.flatView(view);
  graphics::Surface& surface = picture.surface();
  const front::Colour LopColour = surface.pixel({mouse.x, mouse.y});
  if (LopColour == front::kWhite) return;
  const Waiting waiting(form_);
  if (mouse.button != front::MouseButton::left) return;
  workshop_.session.hourglass(true);
  for (int y = 0; y < surface.height(); ++y) {
    for (int x = 0; x < surface.width(); ++x) {
      if (surface.pixel({x, y}) == LopColour) surface.setPixel({x, y}, kGoneRed);
    }
  }
  picture.refresh();
  workshop_.session.hourglass(false);
}

std::string counted(std::size_t count, std::string_view what) {
  return std::to_string(count) + " " + std::string{what} + (count == 1 ? "" : "s");
}

/// What the operator sees below the question.
std::string remarkOn(const LopCount& count) {
  if (count.faces == 0) return "No face begins in this box.";
  return counted(count.faces, "face") + " of " + counted(count.groups, "group") +
         " would go, red in the views.";
}

/// Asks with what would go marked in the views; then they are as they were.
bool LopBox::agreesToCut(ViewMode view, const LopCorners& box) {
  const StoredViews stored(form_);
  LopCount count;
  front::runStoppable(workshop_.session.front, [&] {
    text::ignoringErrors([&] { count = LopPass(workshop_, view, box).preview(); });
  });
  for (front::PictureBox* picture : form_.flatViews()) picture->refresh();
  const front::Caution remark(workshop_.session, remarkOn(count));
  return workshop_.session.front.messageBox("Do you want to remove the mesh in this box?", "Alert!",
                                            front::kYesNo) == front::Answer::yes;
}

void LopBox::cut(ViewMode view, const LopCorners& box) {
  if (workshop_.reading) return;
  const std::string scratch = workshop_.session.opening.inProgramFolder(kScratch);
  {
    const EndOfCut end(form_);
    LopColours(form_.ListLop).gather(workshop_.flatView(view).surface(), box);
    if (view == ViewMode::front && !agreesToCut(view, box)) return;
    LopIt(view, box, scratch);
  }
  for (front::PictureBox* picture : form_.flatViews()) picture->refresh();
  save(scratch);
}

void LopBox::LopIt(ViewMode view, const LopCorners& box, const std::string& scratch) {
  front::Session& session = workshop_.session;
  text::keepApart(session.disk, session.opening.LabelOBJFileName.caption(), scratch);
  const Reading reading(workshop_);
  const Waiting waiting(form_);
  session.hourglass(true);
  text::ignoringErrors([&] { session.disk.remove(scratch); });
  // Nothing is red in them if the cut does not come to its end.
  StoredViews stored(form_);
  front::runStoppable(session.front, [&] { LopPass(workshop_, view, box).writeTo(scratch); });
  stored.letGo();
  session.hourglass(false);
}

void LopBox::save(const std::string& scratch) {
  front::Session& session = workshop_.session;
  front::CommonDialog& dialog = session.opening.CommonDialog2;
  const std::string& source = session.opening.LabelOBJFileName.caption();
  if (!dialog.save(session.front, session.disk.currentFolder(), source, {},
                   {"Save the mesh without the part", front::kMeshFilter})) {
    return;
  }
  const std::string target = dialog.fileName();
  if (session.disk.exists(target)) {
    const front::ResultOffer offer(session, scratch, target);
    if (session.front.messageBox("File already exists. Overwrite?", "Note!", front::kYesNo) !=
        front::Answer::yes) {
      return;
    }
  }
  session.disk.replace(scratch, target);
}

}  // namespace

void wireLopBox(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  const auto box = std::make_shared<LopBox>(workshop);
  form.PictureLop.released.add([box](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) box->toggle();
  });
  for (const ViewMode view : {ViewMode::front, ViewMode::side, ViewMode::top}) {
    front::PictureBox& picture = workshop.flatView(view);
    picture.pressed.add([box, view](front::Mouse mouse) { box->press(view, mouse); });
    picture.moved.add([box, view](front::Mouse mouse) { box->move(view, mouse); });
    picture.released.add([box, view](front::Mouse mouse) { box->release(view, mouse); });
  }
  workshop.forgotten.add([box, &form] {
    box->forget();
    switchLop(form, false);
  });
}

}  // namespace norvik::obj
