#include "desktop/forms/link_dialog_window.h"

#include "desktop/forms/pose_parts.h"
#include "desktop/window/headings.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include <initializer_list>

namespace norvik::desktop {

namespace {

QGroupBox* makeKinds(Maker& maker, const QString& title,
                     std::initializer_list<front::OptionButton*> options, QWidget& parent) {
  auto* group = new QGroupBox(title, &parent);
  auto* column = new QVBoxLayout(group);
  for (front::OptionButton* option : options) column->addWidget(maker.make(*option, *group));
  column->addStretch(1);
  return group;
}

}  // namespace

LinkDialogWindow::LinkDialogWindow(const WindowParts& parts, erc::DialogERC& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent) {
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  QLabel& title = maker().label(form.LabelTitle, *this);
  makeHeading(title);
  column->addWidget(&title);
  auto* hint = new QLabel(
      QStringLiteral("One channel follows another. What is it that leads, and what follows?"),
      this);
  hint->setWordWrap(true);
  column->addWidget(hint);
  auto* grid = new QGridLayout;
  grid->addWidget(makeKinds(maker(), QStringLiteral("A joint leads"),
                            {&form.OptionJCM, &form.OptionJCJ, &form.OptionJCT}, *this),
                  0, 0);
  grid->addWidget(
      makeKinds(maker(), QStringLiteral("A morph leads"),
                {&form.OptionPBM, &form.OptionMCM, &form.OptionMCJ, &form.OptionMCT}, *this),
      0, 1);
  grid->addWidget(makeKinds(maker(), QStringLiteral("A translation leads"),
                            {&form.OptionTCM, &form.OptionTCJ}, *this),
                  1, 0);
  grid->addWidget(
      makeKinds(maker(), QStringLiteral("A figure leads its clothes"), {&form.OptionCM}, *this), 1,
      1);
  column->addLayout(grid, 1);
  column->addWidget(makeDoneRow(maker(), form.LabelDone, form.LabelCancel, *this));
}

}  // namespace norvik::desktop
