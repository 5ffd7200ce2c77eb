#include "desktop/window/headings.h"
#include "desktop/window/list_filter.h"
#include "desktop/window/panes.h"
#include "desktop/window/swatch_tips.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

QWidget* makeParts(Maker& maker, front::Opening& opening, QWidget& parent) {
  auto* side = new QWidget(&parent);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  auto& heading = maker.label(opening.LabelBodyParts, *side);
  makeHeading(heading);
  column->addWidget(&heading);
  auto& actors = maker.list(opening.ListActors, *side);
  actors.setAccessibleName(QStringLiteral("Body parts"));
  column->addWidget(new ListFilter(opening.ListActors, actors, *side));
  column->addWidget(&actors, 1);
  auto* geometries = new QLabel(QStringLiteral("Add a geometry to"), side);
  makeHeading(*geometries);
  maker.showWhileAny(*geometries, {&opening.ListAltGeomActors});
  column->addWidget(geometries);
  auto& altered = maker.list(opening.ListAltGeomActors, *side);
  altered.setAccessibleName(QStringLiteral("Add a geometry to"));
  altered.setToolTip(
      QStringLiteral("Click a body part to give it another geometry. Right click to "
                     "hide this list."));
  column->addWidget(&altered, 1);
  maker.showWhileAny(*side,
                     {&opening.LabelBodyParts, &opening.ListActors, &opening.ListAltGeomActors});
  return side;
}

/// The owners of embedded geometry. Each click turns one over, so that "DONE" keeps the others.
QWidget* makeGeometries(Maker& maker, front::Opening& opening, QWidget& parent) {
  auto* panel = new QWidget(&parent);
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(0, 0, 0, 0);
  auto* heading = new QLabel(QStringLiteral("Embedded geometry"), panel);
  makeHeading(*heading);
  column->addWidget(heading);
  auto& list = maker.list(opening.ListOBJExtract, *panel);
  list.setAccessibleName(QStringLiteral("Embedded geometry"));
  list.setSelectionMode(QAbstractItemView::MultiSelection);
  list.setToolTip(
      QStringLiteral("Choose what to export, then DONE. A right click puts the list away."));
  column->addWidget(&list, 1);
  auto& files = maker.frame(opening.FrameExtractObj, *panel);
  auto* row = new QHBoxLayout(&files);
  row->setContentsMargins(8, 2, 8, 2);
  row->addWidget(maker.make(opening.OptionSepObjFiles, files));
  row->addWidget(maker.make(opening.OptionOneObjFile, files));
  row->addStretch();
  column->addWidget(&files);
  maker.showWhileAny(*panel, {&opening.ListOBJExtract});
  return panel;
}

QWidget* makeMaterials(Maker& maker, front::Opening& opening, QWidget& parent) {
  auto* side = new QWidget(&parent);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  auto& heading = maker.label(opening.LabelMaterials, *side);
  makeHeading(heading);
  column->addWidget(&heading);
  auto& materials = maker.list(opening.ListMaterials, *side);
  materials.setAccessibleName(QStringLiteral("Materials"));
  column->addWidget(&materials, 1);
  for (front::ListBox* list :
       {&opening.ListMATColors, &opening.ListMatHiLite, &opening.ListAltGeomNames}) {
    column->addWidget(&maker.list(*list, *side), 1);
  }
  column->addWidget(makeGeometries(maker, opening, *side), 2);
  auto* swatches = new QHBoxLayout;
  auto& colour = maker.swatch(opening.PictureMatColor, *side);
  keepSwatchTip(maker, opening, opening.PictureMatColor, opening.ListMATColors, colour);
  swatches->addWidget(&colour);
  auto& highlight = maker.swatch(opening.PictureMatHiLite, *side);
  keepSwatchTip(maker, opening, opening.PictureMatHiLite, opening.ListMatHiLite, highlight);
  swatches->addWidget(&highlight);
  swatches->addStretch();
  column->addLayout(swatches);
  maker.showWhileAny(*side,
                     {&opening.LabelMaterials, &opening.ListMaterials, &opening.ListMATColors,
                      &opening.ListMatHiLite, &opening.ListAltGeomNames, &opening.ListOBJExtract,
                      &opening.PictureMatColor, &opening.PictureMatHiLite});
  return side;
}

}  // namespace

QWidget* makeDestinationPane(Maker& maker, front::Opening& opening, QWidget& parent) {
  auto* pane = new QWidget(&parent);
  pane->setObjectName(QStringLiteral("DestinationPane"));
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(kPaneMargin, kPaneMargin, kPaneMargin, kPaneMargin);

  auto& name = maker.pathLabel(opening.LabelFileName, *pane);
  makeFileHeading(name, QStringLiteral("Destination file"));
  column->addWidget(makePaneTitle("Destination", *pane));
  column->addWidget(&name);

  auto* lists = new QSplitter(Qt::Horizontal, pane);
  lists->setObjectName(QStringLiteral("DestinationLists"));
  lists->setChildrenCollapsible(false);
  lists->addWidget(makeParts(maker, opening, *lists));
  lists->addWidget(makeMaterials(maker, opening, *lists));
  lists->setSizes({300, 260});
  column->addWidget(lists, 1);
  maker.showWhileAny(*pane,
                     {&opening.LabelFileName, &opening.LabelBodyParts, &opening.ListActors,
                      &opening.LabelMaterials, &opening.ListMaterials, &opening.ListAltGeomActors,
                      &opening.ListAltGeomNames, &opening.ListOBJExtract});
  return pane;
}

}  // namespace norvik::desktop
