#include "desktop/window/dial_row.h"

#include "desktop/window/headings.h"
#include "desktop/window/hint.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

QHBoxLayout* lineIn(QWidget& row) {
  auto* line = new QHBoxLayout(&row);
  line->setContentsMargins(kPaneMargin, 4, kPaneMargin, 0);
  return line;
}

/// A row with one entry, which takes the keys when it appears.
QWidget* makeEntry(Maker& maker, front::TextBox& box, const QString& word, int width,
                   const QString& hint, QWidget& parent) {
  auto* row = new QWidget(&parent);
  auto* line = lineIn(*row);
  auto* label = new QLabel(word, row);
  auto& edit = maker.line(box, *row);
  edit.setFixedWidth(width);
  edit.setAccessibleName(QString(word).remove(QLatin1Char('&')));
  label->setBuddy(&edit);
  line->addWidget(label);
  line->addWidget(&edit);
  line->addWidget(makeHint(hint, *row), 1);
  maker.watch({&box}, [row, &box, &edit] {
    const bool appears = box.visible() && row->isHidden();
    row->setVisible(box.visible());
    if (!appears) return;
    edit.setFocus(Qt::OtherFocusReason);
    edit.selectAll();
  });
  return row;
}

QWidget* makeAxes(Maker& maker, front::Opening& opening, QWidget& parent) {
  auto* row = new QWidget(&parent);
  auto* line = lineIn(*row);
  line->addWidget(new QLabel(QStringLiteral("Translation dial"), row));
  for (front::Label* axis : {&opening.LabelX, &opening.LabelY, &opening.LabelZ}) {
    auto& button = maker.picture(*axis, *row, 16);
    const QString name = QString::fromStdString(axis->caption());
    button.setText(name);
    button.setToolButtonStyle(Qt::ToolButtonTextOnly);
    button.setAutoRaise(false);
    button.setAccessibleName(name + QStringLiteral(" dial"));
    button.setFocusPolicy(Qt::StrongFocus);
    line->addWidget(&button);
  }
  line->addWidget(makeHint(QStringLiteral("Choose a body part at the left, then the dial that is "
                                          "to be hidden or shown. Escape puts this away."),
                           *row),
                  1);
  maker.showWhileAny(*row, {&opening.LabelX, &opening.LabelY, &opening.LabelZ});
  return row;
}

QWidget* makeMirrorHint(Maker& maker, front::Opening& opening, QWidget& parent) {
  auto* row = new QWidget(&parent);
  auto* hint = makeHint({}, *row);
  lineIn(*row)->addWidget(hint, 1);
  maker.watch({&opening.PictureMirror, &opening.ListChannels}, [hint, &opening] {
    hint->setText(
        opening.MirrorMorph.empty()
            ? QStringLiteral("Mirror: click a morph in the list of all channels, then double-click "
                             "the body part that takes it. Escape ends this.")
            : QStringLiteral("Mirror: double-click the body part that takes ") +
                  QString::fromStdString(opening.MirrorMorph) +
                  QStringLiteral(". The result is mirmorph.cr2 in the program folder. Escape ends "
                                 "this."));
  });
  maker.showWhileAny(*row, {&opening.PictureMirror});
  return row;
}

}  // namespace

QWidget* makeDialRow(Maker& maker, front::Opening& opening, QWidget& parent) {
  constexpr int kName = 220;
  constexpr int kNumber = 90;
  auto* rows = new QWidget(&parent);
  rows->setObjectName(QStringLiteral("DialRows"));
  auto* column = new QVBoxLayout(rows);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(makeEntry(
      maker, opening.TextTrackingSpeed, QStringLiteral("&Tracking speed"), kNumber,
      QStringLiteral("Enter writes the new speed into the figure. Escape changes nothing."),
      *rows));
  column->addWidget(makeEntry(
      maker, opening.TextERCUnique, QStringLiteral("&Unique name"), kName,
      QStringLiteral("Enter makes a copy of the figure with this name. Escape makes none."),
      *rows));
  column->addWidget(makeAxes(maker, opening, *rows));
  column->addWidget(makeMirrorHint(maker, opening, *rows));
  maker.showWhileAny(*rows, {&opening.TextTrackingSpeed, &opening.TextERCUnique, &opening.LabelX,
                             &opening.PictureMirror});
  return rows;
}

void putDialToolsAway(Dispatcher& dispatcher, front::Opening& opening) {
  const std::initializer_list<front::Control*> tools = {&opening.ListChannelsReorderByPart,
                                                        &opening.ListChannelsReorder,
                                                        &opening.ListHideDialsChannels,
                                                        &opening.TextTrackingSpeed,
                                                        &opening.TextERCUnique,
                                                        &opening.LabelX,
                                                        &opening.PictureMirror};
  for (front::Control* control : tools) {
    if (control->visible()) dispatcher.raise(control->key, std::string("Escape"));
  }
}

}  // namespace norvik::desktop
