#include "desktop/window/rename_row.h"

#include "desktop/window/headings.h"
#include "desktop/window/tool_row.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace norvik::desktop {

namespace {

QString nextStep(const front::Opening& opening) {
  if (opening.TextMorphRename.visible()) {
    return QStringLiteral("Type the new name and press Enter.");
  }
  if (opening.OptionChannelRename.value()) {
    return QStringLiteral("Choose a morph at the right, then go on.");
  }
  if (opening.OptionBodyPartRename.value()) {
    return QStringLiteral("Choose a body part at the left, then go on.");
  }
  return QStringLiteral("What is to be renamed?");
}

}  // namespace

QWidget* makeRenameRow(Maker& maker, front::Opening& opening, QWidget& parent) {
  constexpr int kName = 200;
  auto* row = new ToolRow(QStringLiteral("PictureRenameMorph"), parent);
  QHBoxLayout& line = row->line();
  QWidget* channel = maker.make(opening.OptionChannelRename, *row);
  QWidget* part = maker.make(opening.OptionBodyPartRename, *row);
  auto* label = new QLabel(QStringLiteral("Ne&w name"), row);
  auto& edit = maker.line(opening.TextMorphRename, *row);
  edit.setFixedWidth(kName);
  edit.setAccessibleName(QStringLiteral("New name"));
  label->setBuddy(&edit);
  auto* next = new QPushButton(row);
  next->setObjectName(QStringLiteral("RenameNext"));
  auto* hint = new QLabel(row);
  hint->setObjectName(QStringLiteral("RenameHint"));
  hint->setForegroundRole(QPalette::PlaceholderText);
  for (QWidget* widget : {channel, part, static_cast<QWidget*>(label), static_cast<QWidget*>(&edit),
                          static_cast<QWidget*>(next), static_cast<QWidget*>(hint)}) {
    line.addWidget(widget);
  }
  hint->setWordWrap(true);
  line.setStretchFactor(hint, 1);

  QObject::connect(next, &QPushButton::clicked, row, [&maker, &opening] {
    maker.dispatcher().raise(opening.PictureRenameMorph.released, front::Mouse{});
  });
  maker.watch(
      {&opening.TextMorphRename, &opening.OptionChannelRename, &opening.OptionBodyPartRename},
      [&opening, label, next, hint, &edit, channel] {
        const bool named = opening.TextMorphRename.visible();
        const bool asked = opening.OptionChannelRename.visible();
        const bool nameAppears = named && label->isHidden();
        label->setVisible(named);
        next->setText(named ? QStringLiteral("Rename") : QStringLiteral("Go on"));
        hint->setText(nextStep(opening) + QStringLiteral(" Escape puts this away."));
        if (nameAppears) {
          edit.setFocus(Qt::OtherFocusReason);
          edit.selectAll();
        } else if (asked && !channel->property("asked").toBool()) {
          channel->setFocus(Qt::OtherFocusReason);
        }
        channel->setProperty("asked", asked);
      });
  maker.showWhileAny(*row, {&opening.TextMorphRename, &opening.OptionChannelRename,
                            &opening.OptionBodyPartRename});
  return row;
}

}  // namespace norvik::desktop
