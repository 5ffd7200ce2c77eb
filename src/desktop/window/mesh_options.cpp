#include "desktop/window/mesh_panes.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <initializer_list>

namespace norvik::desktop {

namespace {

QWidget* makeGroup(Maker& maker, front::Frame& frame,
                   std::initializer_list<front::Control*> controls, QWidget& parent) {
  auto& group = maker.frame(frame, parent);
  auto* column = new QVBoxLayout(&group);
  column->setContentsMargins(8, 6, 8, 6);
  column->setSpacing(3);
  for (front::Control* control : controls) column->addWidget(maker.make(*control, group));
  column->addStretch();
  return &group;
}

}  // namespace

QWidget* makeMeshOptions(Maker& maker, front::FormOBJ& form, QWidget& parent) {
  auto* row = new QWidget(&parent);
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(makeGroup(maker, form.Frame1,
                            {&form.OptionFrontView, &form.OptionSideView, &form.OptionTopView},
                            *row));
  line->addWidget(
      makeGroup(maker, form.Frame2,
                {&form.OptionNoColors, &form.OptionColorGroups, &form.OptionColorMaterials}, *row));
  line->addWidget(makeGroup(maker, form.Frame3,
                            {&form.OptionShowPolys, &form.OptionShowPoints, &form.CheckHiddenFaces,
                             &form.OptionAlphabetize},
                            *row));
  row->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  return row;
}

}  // namespace norvik::desktop
