#include "desktop/window/hint.h"
#include "desktop/window/mesh_panes.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>

namespace norvik::desktop {

namespace {

/// A corner of the box on a flat view, in pixels from the view's upper left corner.
struct Corner {
  QSpinBox* across = nullptr;
  QSpinBox* down = nullptr;
};

Corner addCorner(QGridLayout& grid, int row, const QString& word, const QString& name,
                 QWidget& parent) {
  constexpr int kMost = 9999;
  Corner corner{new QSpinBox(&parent), new QSpinBox(&parent)};
  auto* label = new QLabel(word, &parent);
  label->setBuddy(corner.across);
  grid.addWidget(label, row, 0);
  int column = 1;
  for (const auto& [box, axis] : {std::pair{corner.across, QStringLiteral("across")},
                                  std::pair{corner.down, QStringLiteral("down")}}) {
    box->setRange(0, kMost);
    box->setSingleStep(10);
    box->setObjectName(name + axis);
    box->setAccessibleName(QString(word).remove(QLatin1Char('&')) + u' ' + axis);
    box->setToolTip(QStringLiteral("Pixels of the view, %1").arg(axis));
    grid.addWidget(box, row, column++);
  }
  return corner;
}

/// The flat view that is looked at; none in 3D.
front::PictureBox* seenView(front::FormOBJ& form) {
  const auto views = form.flatViews();
  const auto seen =
      std::find_if(views.begin(), views.end(), [](const auto* view) { return view->visible(); });
  return seen == views.end() ? nullptr : *seen;
}

/// What the mouse does on the view: a box, or a click where both corners are one place.
void draw(Maker& maker, front::PictureBox& view, const Corner& first, const Corner& second) {
  const front::Mouse from{front::MouseButton::left, first.across->value(), first.down->value()};
  const front::Mouse to{front::MouseButton::left, second.across->value(), second.down->value()};
  maker.dispatcher().run(view.name(), [&] {
    view.pressed.raise(from);
    view.moved.raise(to);
    view.released.raise(to);
    view.clicked.raise();
  });
}

}  // namespace

QWidget* makeLopRow(Maker& maker, front::FormOBJ& form, QWidget& parent) {
  auto* group = new QGroupBox(QStringLiteral("Box to cut"), &parent);
  group->setObjectName(QStringLiteral("BoxToCut"));
  auto* grid = new QGridLayout(group);
  const Corner first =
      addCorner(*grid, 0, QStringLiteral("Fir&st corner"), QStringLiteral("CutFirst."), *group);
  const Corner second =
      addCorner(*grid, 1, QStringLiteral("S&econd corner"), QStringLiteral("CutSecond."), *group);
  auto* cut = new QPushButton(QStringLiteral("&Cut"), group);
  cut->setObjectName(QStringLiteral("CutBox"));
  cut->setToolTip(
      QStringLiteral("As if the box were drawn on the view; where both corners are one "
                     "place, as if that were clicked"));
  grid->addWidget(cut, 3, 0, 1, 3, Qt::AlignRight);
  grid->addWidget(makeHint(QStringLiteral("Draw the box on a flat view, or say it here in pixels "
                                          "from the view's upper left corner."),
                           *group),
                  2, 0, 1, 3);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(2, 1);
  QObject::connect(cut, &QPushButton::clicked, group, [&maker, &form, first, second] {
    if (front::PictureBox* view = seenView(form); view != nullptr) {
      draw(maker, *view, first, second);
    }
  });
  maker.watch({&form.PictureLop, &form.PictureStore, &form.PictureStore2, &form.PictureStore3},
              [group, cut, &form] {
                group->setVisible(form.PictureLop.active() && form.PictureLop.visible());
                cut->setEnabled(seenView(form) != nullptr);
              });
  return group;
}

}  // namespace norvik::desktop
