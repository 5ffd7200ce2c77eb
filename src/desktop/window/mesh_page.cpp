#include "desktop/icons.h"
#include "desktop/window/headings.h"
#include "desktop/window/panes.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace norvik::desktop {

QWidget* makeMeshPage(Maker& maker, front::Opening& opening, QWidget& parent) {
  constexpr int kPicture = 96;
  auto* page = new QWidget(&parent);
  page->setObjectName(QStringLiteral("MeshPage"));
  auto* column = new QVBoxLayout(page);
  column->addStretch();

  auto* picture = new QToolButton(page);
  picture->setIcon(pictureNamed(QStringLiteral("mesh")));
  picture->setIconSize({kPicture, kPicture});
  picture->setAutoRaise(true);
  picture->setFocusPolicy(Qt::NoFocus);
  picture->setAttribute(Qt::WA_TransparentForMouseEvents);
  column->addWidget(picture, 0, Qt::AlignHCenter);

  auto& name = maker.pathLabel(opening.LabelOBJFileName, *page);
  makeHeading(name);
  name.setAccessibleName(QStringLiteral("Mesh file"));
  column->addWidget(&name, 0, Qt::AlignHCenter);
  auto* hint = new QLabel(QStringLiteral("The tools for a mesh are in the tool bar above."), page);
  hint->setForegroundRole(QPalette::PlaceholderText);
  column->addWidget(hint, 0, Qt::AlignHCenter);
  column->addWidget(&maker.list(opening.ListOBJBatch, *page), 1);
  column->addStretch();
  maker.showWhileAny(*page, {&opening.LabelOBJFileName, &opening.ListOBJBatch});
  return page;
}

}  // namespace norvik::desktop
