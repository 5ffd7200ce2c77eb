#include "desktop/window/headings.h"
#include "desktop/window/hint.h"
#include "desktop/window/panes.h"
#include "desktop/words.h"
#include "text/disk.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace norvik::desktop {

QWidget* makeInstallPane(Maker& maker, front::Opening& opening, QWidget& parent) {
  constexpr int kIcon = 28;
  auto* pane = new QWidget(&parent);
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(kPaneMargin, kPaneMargin, kPaneMargin, kPaneMargin);
  column->addWidget(makePaneTitle("Install a figure", *pane));
  auto* heading = new QLabel(pane);
  makeHeading(*heading);
  column->addWidget(heading);
  ListView& files = maker.list(opening.ListboxListCR2Files, *pane);
  files.setAccessibleName(QStringLiteral("Lines that name files"));
  heading->setBuddy(&files);
  column->addWidget(&files, 1);
  column->addWidget(
      makeHint(QStringLiteral(
                   "Install reads out of these lines where the geometry and the maps belong, and "
                   "asks for the folder of the library. Nothing is moved before you say so there."),
               *pane));
  auto* line = new QHBoxLayout;
  for (front::PictureButton* picture : {&opening.PictureInstallCR2, &opening.PicturePrintCR2Files,
                                        &opening.PictureCR2InstallCancel}) {
    line->addWidget(&maker.picture(*picture, *pane, kIcon));
  }
  line->addStretch();
  column->addLayout(line);
  maker.watch({&opening.ListboxListCR2Files, &opening.LabelOBJFileName}, [&opening, heading] {
    heading->setText(QStringLiteral("Lines of %1 that name files")
                         .arg(shown(text::fileTitle(opening.LabelOBJFileName.caption()))));
  });
  maker.showWhileAny(*pane, {&opening.ListboxListCR2Files});
  return pane;
}

void showUnlessInstalling(Maker& maker, front::Opening& opening, QWidget& widget,
                          const std::vector<front::Control*>& controls) {
  const auto show = [&opening, &widget, controls] {
    const bool any = std::any_of(controls.begin(), controls.end(),
                                 [](const front::Control* control) { return control->visible(); });
    widget.setVisible(any && !opening.ListboxListCR2Files.visible());
  };
  for (front::Control* control : controls) maker.watch({control}, show);
  maker.watch({&opening.ListboxListCR2Files}, show);
}

}  // namespace norvik::desktop
