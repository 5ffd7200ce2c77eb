#include "desktop/window/mesh_panes.h"
#include "obj/surgery/merge.h"
#include "obj/surgery/overlays.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace norvik::desktop {

namespace {

/// One axis of the second mesh's place, in mesh units. What is typed moves the front overlay as the
/// mouse would, by whole pixels.
class ShiftBox : public QDoubleSpinBox {
 public:
  enum class Axis { right, up };

  ShiftBox(Maker& maker, front::FormOBJ& form, Axis axis, QWidget* parent)
      : QDoubleSpinBox(parent), maker_(maker), form_(form), axis_(axis) {
    constexpr double kMost = 100;
    constexpr int kDecimals = 4;
    setRange(-kMost, kMost);
    setDecimals(kDecimals);
    setSingleStep(1 / pixelsToUnit());
    setKeyboardTracking(false);
    connect(this, &QDoubleSpinBox::valueChanged, this, [this](double value) { move(value); });
    maker.watch({&form.PictureAddObjFront}, [this] { follow(); });
  }

 private:
  double pixelsToUnit() const { return static_cast<double>(form_.PictureOBJViewer.box().width); }

  /// In pixels, to the right or up.
  double shift() const {
    const front::Box& box = form_.PictureAddObjFront.box();
    return axis_ == Axis::right ? static_cast<double>(box.left - obj::kOverlayLeft)
                                : static_cast<double>(obj::kOverlayTop - box.top);
  }

  void follow() {
    const QSignalBlocker quiet(this);
    setSingleStep(1 / pixelsToUnit());
    setValue(shift() / pixelsToUnit());
  }

  void move(double value) {
    const int by = static_cast<int>(std::lround(value * pixelsToUnit() - shift()));
    front::PictureBox& overlay = form_.PictureAddObjFront;
    const auto button = front::MouseButton::left;
    maker_.dispatcher().run(overlay.name(), [&] {
      overlay.pressed.raise({button, 0, 0});
      overlay.moved.raise(axis_ == Axis::right ? front::Mouse{button, by, 0}
                                               : front::Mouse{button, 0, -by});
      overlay.released.raise({button, 0, 0});
    });
    follow();
  }

  Maker& maker_;
  front::FormOBJ& form_;
  Axis axis_;
};

QWidget* makeShift(Maker& maker, front::FormOBJ& form, QWidget& parent) {
  auto* group = new QGroupBox(QStringLiteral("Second mesh"), &parent);
  group->setObjectName(QStringLiteral("SecondMesh"));
  auto* rows = new QFormLayout(group);
  auto* right = new ShiftBox(maker, form, ShiftBox::Axis::right, group);
  right->setObjectName(QStringLiteral("ShiftRight"));
  right->setToolTip(QStringLiteral("Vertices left of the middle go the other way"));
  rows->addRow(QStringLiteral("Move &right"), right);
  auto* up = new ShiftBox(maker, form, ShiftBox::Axis::up, group);
  up->setObjectName(QStringLiteral("ShiftUp"));
  rows->addRow(QStringLiteral("Move &up"), up);
  maker.showWhileAny(*group, {&form.PictureMerge});
  return group;
}

QWidget* makeSaveMerged(Maker& maker, front::Session& session, QWidget& parent) {
  auto* button = new QPushButton(QStringLiteral("Save the merged mesh as..."), &parent);
  button->setObjectName(QStringLiteral("SaveMerged"));
  button->setToolTip(QStringLiteral("The next merge takes the place of this one"));
  QObject::connect(button, &QPushButton::clicked, button, [&maker, &session, button] {
    maker.dispatcher().run(button->objectName().toStdString(), [&] { obj::saveMerged(session); });
  });
  front::Label& path = session.opening.LabelOBJFileName;
  maker.watch({&path}, [button, &session] { button->setVisible(obj::isMergedInView(session)); });
  return button;
}

}  // namespace

QWidget* makeMeshSurgery(Maker& maker, front::Session& session, front::FormOBJ& form,
                         QWidget& parent) {
  auto* panel = new QWidget(&parent);
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(0, 0, 0, 0);
  auto* turn = new QCheckBox(QStringLiteral("Turn &faces round when mirroring"), panel);
  turn->setObjectName(QStringLiteral("TurnFacesRound"));
  turn->setToolTip(QStringLiteral(
      "Across one axis, or all three, the corners of each face are written in the other order"));
  QObject::connect(turn, &QCheckBox::toggled, turn, [&form](bool on) { form.TurnFacesRound = on; });
  maker.watch({&form.LabelMirror}, [turn, &form] {
    turn->setVisible(form.LabelMirror.visible());
    turn->setChecked(form.TurnFacesRound);
  });
  column->addWidget(turn);
  column->addWidget(makeShift(maker, form, *panel));
  column->addWidget(makeLopRow(maker, form, *panel));
  column->addWidget(makeSaveMerged(maker, session, *panel));
  panel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  return panel;
}

}  // namespace norvik::desktop
