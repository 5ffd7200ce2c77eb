#include "desktop/window/view_stack.h"

#include "desktop/gl/gl_support.h"
#include "desktop/gl/gl_view.h"
#include "desktop/images.h"
#include "obj/surgery/overlays.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace norvik::desktop {

namespace {

/// The view in three dimensions of a desktop that has none: as blank as the tools expect it.
class BlankView : public QWidget {
 public:
  explicit BlankView(QWidget* parent) : QWidget(parent) {
    setAutoFillBackground(true);
    QPalette white = palette();
    white.setColor(QPalette::Window, Qt::white);
    setPalette(white);
  }
};

bool isOverlay(front::FormOBJ& form, const front::PictureBox& picture) {
  const auto overlays = form.overlays();
  return std::find(overlays.begin(), overlays.end(), &picture) != overlays.end();
}

void turnWheel(QWidget& view, int by) {
  const QPointF middle = view.rect().center();
  QWheelEvent event(middle, view.mapToGlobal(middle), {}, QPoint(0, by), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&view, &event);
}

/// Moves what is seen as the middle button does.
void pull(QWidget& view, QPoint by) {
  const QPointF middle = view.rect().center();
  const auto send = [&view](QEvent::Type type, const QPointF& place, Qt::MouseButton button,
                            Qt::MouseButtons held) {
    QMouseEvent event(type, place, view.mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &event);
  };
  send(QEvent::MouseButtonPress, middle, Qt::MiddleButton, Qt::MiddleButton);
  send(QEvent::MouseMove, middle + by, Qt::NoButton, Qt::MiddleButton);
  send(QEvent::MouseButtonRelease, middle + by, Qt::MiddleButton, Qt::NoButton);
}

/// A second mesh over the one in view: its picture is moved within a view that stays where it is.
void followOverlay(Maker& maker, front::PictureBox& picture, SurfaceView& view) {
  maker.watch({&picture}, [&picture, &view] {
    const front::Box& box = picture.box();
    view.placeOver({static_cast<int>(std::lround(box.left - obj::kOverlayLeft)),
                    static_cast<int>(std::lround(box.top - obj::kOverlayTop))});
  });
}

}  // namespace

ViewStack::ViewStack(Maker& maker, front::FormOBJ& form, DesktopFrontEnd& frontEnd, QWidget* parent)
    : QFrame(parent), form_(form), hint_(new QLabel(this)) {
  constexpr int kLeast = 280;
  setObjectName(QStringLiteral("ViewStack"));
  setFrameStyle(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  setMinimumSize(kLeast, kLeast);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(QStringLiteral("Views of the mesh"));
  hint_->setObjectName(QStringLiteral("ViewHint"));
  hint_->setAlignment(Qt::AlignCenter);
  hint_->setWordWrap(true);
  hint_->setAttribute(Qt::WA_TransparentForMouseEvents);

  view3D_ = &make3DView(maker, form.PictureObjViewer2, frontEnd);
  for (front::Control* control : form.controls()) {
    auto* picture = dynamic_cast<front::PictureBox*>(control);
    if (picture == nullptr || picture == &form.PictureObjViewer2) continue;
    SurfaceView& view = maker.surface(*picture, *this);
    addView(view);
    const auto flatViews = form.flatViews();
    const auto* flat = std::find(flatViews.begin(), flatViews.end(), picture);
    if (flat != flatViews.end())
      flat_.at(static_cast<std::size_t>(flat - flatViews.begin())) = &view;
    if (isOverlay(form, *picture)) followOverlay(maker, *picture, view);
    maker.watch({picture}, [this] { tellWhatToDo(); });
  }
  addView(*maker.make(form.ImageSaveMap, *this));
  maker.cover(form.ImageBoss, *this, QStringLiteral("boss_sheet"));
  maker.watch({&form.PictureObjViewer2, &form.LabelView, &form.ImageBoss, &form.CommandListGroups},
              [this] { tellWhatToDo(); });
  maker.watch({&form.PictureObjViewer2, &form.PictureStore, &form.ListGroups},
              [this] { showMark(); });
}

QWidget& ViewStack::make3DView(Maker& maker, front::PictureBox& picture,
                               DesktopFrontEnd& frontEnd) {
  QWidget* view = nullptr;
  if (glSupport().present) {
    space_ = new GlView(frontEnd.glDevice(picture), this);
    view = space_;
  } else {
    view = new BlankView(this);
  }
  maker.bindings().add(std::make_unique<WidgetBinding>(maker.dispatcher(), picture, *view));
  view->setAccessibleName(QStringLiteral("The mesh in 3D"));
  view->setContextMenuPolicy(Qt::NoContextMenu);
  addView(*view);
  return *view;
}

void ViewStack::addView(QWidget& view) {
  // A view that goes must not pass the keys on to the next button.
  view.setFocusPolicy(Qt::ClickFocus);
  view.setFocusProxy(this);
  views_.push_back(&view);
}

QSize ViewStack::sizeHint() const {
  const front::Box& box = form_.PictureObjViewer2.box();
  const int frame = 2 * frameWidth();
  return {static_cast<int>(box.width) + frame, static_cast<int>(box.height) + frame};
}

void ViewStack::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  place();
}

void ViewStack::keyPressEvent(QKeyEvent* event) {
  if (!moveByKey(*event)) QFrame::keyPressEvent(event);
}

/// What the wheel and the middle button do on the picture that is seen, Ctrl does with a key.
bool ViewStack::moveByKey(const QKeyEvent& event) {
  const auto seen = std::find_if(views_.begin(), views_.end(), [](const QWidget* view) {
    return view->isVisible() && dynamic_cast<const SurfaceView*>(view) != nullptr;
  });
  if (seen == views_.end() || !event.modifiers().testFlag(Qt::ControlModifier)) return false;
  QWidget& view = **seen;
  constexpr int kNotch = 120;
  constexpr int kStep = 40;
  switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      turnWheel(view, kNotch);
      return true;
    case Qt::Key_Minus:
      turnWheel(view, -kNotch);
      return true;
    case Qt::Key_Left:
      pull(view, {kStep, 0});
      return true;
    case Qt::Key_Right:
      pull(view, {-kStep, 0});
      return true;
    case Qt::Key_Up:
      pull(view, {0, kStep});
      return true;
    case Qt::Key_Down:
      pull(view, {0, -kStep});
      return true;
    default:
      return false;
  }
}

void ViewStack::place() {
  const QRect area = contentsRect();
  for (QWidget* view : views_) view->setGeometry(area);
  const int side = std::min(area.width(), area.height());
  QRect square(0, 0, side, side);
  square.moveCenter(area.center());
  view3D_->setGeometry(square);
  constexpr int kMargin = 24;
  hint_->setGeometry(area.adjusted(kMargin, kMargin, -kMargin, -kMargin));
}

/// The mesh is read once its lists can be asked for.
void ViewStack::tellWhatToDo() {
  const auto& controls = form_.controls();
  const bool seen = std::any_of(controls.begin(), controls.end(), [this](const auto* control) {
    const bool view = control->kind() == front::ControlKind::drawingSurface;
    return view && control != &form_.PictureObjViewer2 && control->visible();
  });
  const bool read = form_.CommandListGroups.enabled();
  const bool blank = !seen && (!read || !form_.PictureObjViewer2.visible());
  hint_->setVisible(blank && form_.LabelView.visible() && !form_.ImageBoss.visible());
  QPalette ink = palette();
  // The 3D view is white in any theme.
  if (form_.PictureObjViewer2.visible()) ink.setColor(hint_->foregroundRole(), QColor("#6c7684"));
  hint_->setPalette(ink);
  hint_->setText(read ? QStringLiteral("Space spins the mesh, View draws it again.")
                      : QStringLiteral("View reads the mesh and draws it."));
  hint_->raise();
}

void ViewStack::showMark() {
  if (mark_ == form_.Mark) return;
  mark_ = form_.Mark;
  for (std::size_t view = 0; view < flat_.size(); ++view) {
    flat_.at(view)->setMark(mark_ ? imageOn(mark_->flat.at(view)) : QImage());
  }
  if (space_ == nullptr) return;
  std::vector<GlDevice::Corner> corners;
  if (mark_) {
    for (const graphics::Vertex& at : mark_->corners) corners.push_back({at.x, at.y, at.z});
  }
  space_->setMark(std::move(corners));
}

}  // namespace norvik::desktop
