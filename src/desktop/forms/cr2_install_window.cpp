#include "desktop/forms/cr2_install_window.h"

#include "desktop/bind/label_button.h"
#include "desktop/forms/pose_parts.h"
#include "desktop/window/escape.h"
#include "desktop/window/headings.h"
#include "desktop/window/side_by_side.h"
#include "desktop/words.h"
#include "install/move_preview.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 900;
constexpr int kHeight = 560;
constexpr int kFewRows = 110;

}  // namespace

Cr2InstallWindow::Cr2InstallWindow(const WindowParts& parts, install::FormCR2Install& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent),
      session_(parts.session),
      form_(form) {
  QVBoxLayout& column =
      laySideBySide(maker(), form.LabelHint, *this, {{makeFolders(), 2}, {makePreview(), 3}});

  auto* heading = new QLabel(QStringLiteral("Found no place"), this);
  makeHeading(*heading);
  ListView& left = maker().list(form.ListCR2Install, *this);
  left.setMaximumHeight(kFewRows);
  heading->setBuddy(&left);
  column.addWidget(heading);
  column.addWidget(&left);
  maker().showWhileAny(*heading, {&form.ListCR2Install});

  auto* buttons = new QDialogButtonBox(this);
  QPushButton* install =
      buttons->addButton(QStringLiteral("&Install here"), QDialogButtonBox::ActionRole);
  install->setObjectName(QStringLiteral("InstallHere"));
  QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
  cancel->setAutoDefault(false);
  install->setDefault(true);
  connect(install, &QPushButton::clicked, this,
          [this] { maker().dispatcher().raise(form_.DirCR2Install.key, std::string{"Enter"}); });
  connect(cancel, &QPushButton::clicked, this, [this] { close(); });
  column.addWidget(buttons);
  resize(kWidth, kHeight);
}

QLayout* Cr2InstallWindow::makeFolders() {
  auto* column = new QVBoxLayout;
  QComboBox& drives = maker().drives(form_.DriveCR2Install, *this);
  drives.setAccessibleName(QStringLiteral("Drive"));
  QListWidget& folders = maker().folders(form_.DirCR2Install, *this);
  folders.setAccessibleName(QStringLiteral("Folder of the library"));
  column->addWidget(&drives);
  column->addWidget(&folders, 1);
  auto* line = new QHBoxLayout;
  line->addWidget(&makeLabelButton(maker(), form_.LabelNewDir, *this));
  line->addWidget(&makeLabelButton(maker(), form_.LabelRmDir, *this));
  line->addStretch();
  column->addLayout(line);
  QLineEdit& name = maker().line(form_.TextNewDir, *this);
  name.setAccessibleName(QStringLiteral("Name of the new folder"));
  name.setPlaceholderText(QStringLiteral("Name of the new folder, then Enter"));
  column->addWidget(&name);
  maker().watch({&form_.TextNewDir}, [this, &name] {
    if (form_.TextNewDir.visible() && !name.hasFocus()) name.setFocus();
  });
  onEscape(name, [this, &folders] {
    maker().dispatcher().run(form_.name(), [this] { form_.TextNewDir.hide(); });
    folders.setFocus(Qt::OtherFocusReason);
  });
  folders.setFocus();
  return column;
}

QLayout* Cr2InstallWindow::makePreview() {
  preview_ = new QTreeWidget(this);
  preview_->setObjectName(QStringLiteral("MovePreview"));
  preview_->setAccessibleName(QStringLiteral("What the installation does"));
  preview_->setHeaderLabels({QStringLiteral("File"), QStringLiteral("Goes to")});
  preview_->setRootIsDecorated(false);
  preview_->setUniformRowHeights(true);
  preview_->setTextElideMode(Qt::ElideMiddle);
  preview_->setSelectionMode(QAbstractItemView::NoSelection);
  preview_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  maker().watch(
      {&form_.DirCR2Install, &session_.opening.LabelRtDir, &session_.opening.LabelTexPathCR2Install,
       &session_.opening.LabelObjPathCR2Install},
      [this] { showPreview(); });
  return makeColumn(QStringLiteral("What goes where"), preview_);
}

void Cr2InstallWindow::showPreview() {
  preview_->clear();
  if (!form_.loaded()) return;
  const auto places = install::InstallPlaces::of(session_.opening, form_.DirCR2Install.path());
  for (const install::MovePreview& row : install::previewMoves(session_.disk, places)) {
    const bool stays = row.folder.empty();
    const QString target =
        stays ? shown(row.remark)
              : shown(row.folder) + (row.newName == row.name
                                         ? QString()
                                         : QStringLiteral(", as ") + shown(row.newName));
    auto* item = new QTreeWidgetItem(preview_, {shown(row.name), target});
    item->setToolTip(1, target);
    if (!stays) continue;
    for (const int part : {0, 1}) {
      item->setForeground(part, palette().color(QPalette::PlaceholderText));
    }
  }
}

}  // namespace norvik::desktop
