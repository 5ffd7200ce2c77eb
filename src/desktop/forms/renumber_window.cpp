#include "desktop/forms/renumber_window.h"

#include "desktop/forms/pose_parts.h"
#include "desktop/theme.h"
#include "desktop/window/side_by_side.h"
#include "desktop/words.h"
#include "install/renumber.h"
#include "install/staging.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 880;
constexpr int kHeight = 500;

}  // namespace

RenumberWindow::RenumberWindow(const WindowParts& parts, install::FormRenumber& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent),
      session_(parts.session),
      form_(form) {
  QVBoxLayout& column = laySideBySide(maker(), form.LabelHint, *this,
                                      {{makeFolders(), 1}, {makeFiles(), 1}, {makePreview(), 1}});
  auto* buttons = new QDialogButtonBox(this);
  auto* go = qobject_cast<QPushButton*>(maker().make(form.CommandGo, *this));
  buttons->addButton(go, QDialogButtonBox::ActionRole);
  QPushButton* close = buttons->addButton(QDialogButtonBox::Close);
  close->setAutoDefault(false);
  go->setDefault(true);
  connect(close, &QPushButton::clicked, this, [this] { this->close(); });
  column.addWidget(buttons);
  resize(kWidth, kHeight);
}

QLayout* RenumberWindow::makeFolders() {
  auto* column = new QVBoxLayout;
  QComboBox& drives = maker().drives(form_.Drive1, *this);
  drives.setAccessibleName(QStringLiteral("Drive"));
  QListWidget& folders = maker().folders(form_.Dir1, *this);
  column->addWidget(&drives);
  column->addLayout(makeColumn(QStringLiteral("Folder"), &folders), 1);
  return column;
}

QLayout* RenumberWindow::makeFiles() {
  auto* column = new QVBoxLayout;
  auto* line = new QHBoxLayout;
  line->addWidget(new QLabel(QStringLiteral("Show"), this));
  line->addWidget(maker().make(form_.OptionBMP, *this));
  line->addWidget(maker().make(form_.OptionOBJ, *this));
  line->addStretch();
  column->addLayout(line);
  ListView& files = maker().list(form_.File1, *this);
  column->addLayout(makeColumn(QStringLiteral("Files"), &files), 1);
  return column;
}

QLayout* RenumberWindow::makePreview() {
  preview_ = new QListWidget(this);
  preview_->setObjectName(QStringLiteral("RenumberPreview"));
  preview_->setSelectionMode(QAbstractItemView::NoSelection);
  preview_->setUniformItemSizes(true);
  maker().watch({&form_.File1, &form_.Dir1}, [this] { showPreview(); });
  return makeColumn(QStringLiteral("What GO does"), preview_);
}

void RenumberWindow::showPreview() {
  preview_->clear();
  if (!form_.loaded()) return;
  const std::string& folder = form_.Dir1.path();
  bool stopped = false;
  for (const install::Renumbered& file : install::sequenceIn(session_.disk, folder)) {
    if (file.from == file.to) continue;
    const bool taken = !stopped && session_.disk.exists(install::inFolder(folder, file.to));
    QString text = shown(file.from) + QStringLiteral(" \u2192 ") + shown(file.to);
    if (taken) text += QStringLiteral(" is there: GO stops here");
    auto* item = new QListWidgetItem(text, preview_);
    if (taken) item->setForeground(accentOf(palette()));
    stopped = stopped || taken;
    if (stopped && !taken) item->setForeground(palette().color(QPalette::PlaceholderText));
  }
  if (preview_->count() > 0) return;
  auto* none = new QListWidgetItem(QStringLiteral("Nothing: no file 1.obj or 1.bmp"), preview_);
  none->setForeground(palette().color(QPalette::PlaceholderText));
}

}  // namespace norvik::desktop
