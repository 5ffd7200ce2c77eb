#include "desktop/forms/link_window.h"

#include "desktop/bind/label_button.h"
#include "desktop/forms/pose_parts.h"
#include "desktop/window/headings.h"
#include "desktop/window/list_filter.h"
#include "desktop/words.h"
#include "erc/link_kinds.h"
#include "erc/link_preview.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

#include <initializer_list>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 860;
constexpr int kHeight = 640;
constexpr int kStepsWidth = 270;
constexpr int kPause = 250;  // milliseconds

/// A step of the walk: its name, its text, and what Enter does there.
void addStep(Maker& maker, front::Label& name, front::TextBox& box, const QString& hint,
             QVBoxLayout& column, QWidget& parent) {
  QLabel& label = maker.label(name, parent);
  QLineEdit& line = maker.line(box, parent);
  label.setBuddy(&line);
  line.setAccessibleName(shown(name.caption()));
  line.setPlaceholderText(hint);
  column.addWidget(&label);
  column.addWidget(&line);
}

/// A list under its filter, on view while the list is.
QWidget* makeList(Maker& maker, front::ListBox& list, const QString& name,
                  std::initializer_list<front::Label*> headings, QWidget& parent) {
  auto* pane = new QWidget(&parent);
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  auto* title = new QLabel(name, pane);
  makeHeading(*title);
  column->addWidget(title);
  for (front::Label* heading : headings) column->addWidget(&maker.label(*heading, *pane));
  ListView& view = maker.list(list, *pane);
  view.setAccessibleName(name);
  title->setBuddy(&view);
  auto* filter = new ListFilter(list, view, *pane);
  filter->stay();
  column->addWidget(filter);
  column->addWidget(&view, 1);
  maker.showWhileAny(*pane, {&list});
  return pane;
}

}  // namespace

LinkWindow::LinkWindow(const WindowParts& parts, erc::FormECM& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent),
      session_(parts.session),
      form_(form) {
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  for (const erc::KindOfLink& kind : erc::kindsOfLink()) {
    QLabel& title = maker().label(form.*kind.label, *this);
    makeHeading(title);
    column->addWidget(&title);
  }
  auto* middle = new QHBoxLayout;
  middle->setSpacing(2 * kPaneMargin);
  middle->addWidget(makeSteps());
  middle->addWidget(makeLists(), 1);
  column->addLayout(middle, 1);
  column->addWidget(makePreview());
  auto* foot = new QHBoxLayout;
  foot->addWidget(&maker().label(form.LabelWait, *this));
  foot->addStretch(1);
  foot->addWidget(&makeLabelButton(maker(), form.LabelDone, *this));
  foot->addWidget(&makeLabelButton(maker(), form.LabelCancel, *this));
  column->addLayout(foot);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this,
          [this] { openFilter(*this); });
  resize(kWidth, kHeight);
}

QWidget* LinkWindow::makeSteps() {
  auto* steps = new QWidget(this);
  steps->setFixedWidth(kStepsWidth);
  auto* column = new QVBoxLayout(steps);
  column->setContentsMargins(0, 0, 0, 0);
  addStep(maker(), form_.LabelPBM1, form_.TextPBM1, QStringLiteral("Enter lists the figures"),
          *column, *steps);
  addStep(maker(), form_.LabelPBM2, form_.TextPBM2, {}, *column, *steps);
  addStep(maker(), form_.LabelPBM3, form_.TextPBM3, QStringLiteral("Enter lists all actors"),
          *column, *steps);
  addStep(maker(), form_.LabelPBM4, form_.TextPBM4, {}, *column, *steps);
  addStep(maker(), form_.LabelPBMRatio, form_.TextPBMRatio, {}, *column, *steps);
  auto* hint = new QLabel(QStringLiteral("Enter writes the link into the figure."), steps);
  hint->setForegroundRole(QPalette::PlaceholderText);
  maker().showWhileAny(*hint, {&form_.TextPBMRatio});
  column->addWidget(hint);
  column->addStretch(1);
  return steps;
}

QWidget* LinkWindow::makeLists() {
  auto* lists = new QWidget(this);
  auto* row = new QHBoxLayout(lists);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kPaneMargin);
  row->addWidget(makeList(maker(), form_.ListControlledMorph, QStringLiteral("Channels"),
                          {&form_.LabelMCControled, &form_.LabelMCMaster}, *lists),
                 1);
  row->addWidget(makeList(maker(), form_.ListConFigECM, QStringLiteral("Figures"),
                          {&form_.LabelConFigECM}, *lists),
                 1);
  row->addWidget(makeList(maker(), form_.ListActorsECM, QStringLiteral("Groups"), {}, *lists), 1);
  QWidget* limits = maker().make(form_.ListMinMax, *lists);
  row->addWidget(limits);
  return lists;
}

QWidget* LinkWindow::makePreview() {
  auto* group = new QGroupBox(QStringLiteral("What will be written"), this);
  auto* column = new QVBoxLayout(group);
  lines_ = new QLabel(group);
  lines_->setTextFormat(Qt::PlainText);
  lines_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  lines_->setAccessibleName(QStringLiteral("The lines of the link"));
  place_ = new QLabel(group);
  place_->setTextFormat(Qt::PlainText);
  place_->setWordWrap(true);
  place_->setAccessibleName(QStringLiteral("Where they go"));
  column->addWidget(lines_);
  column->addWidget(place_);
  pause_ = new QTimer(this);
  pause_->setSingleShot(true);
  pause_->setInterval(kPause);
  connect(pause_, &QTimer::timeout, this, [this] { preview(); });
  maker().watch({&form_.TextPBM1, &form_.TextPBM2, &form_.TextPBM3, &form_.TextPBM4,
                 &form_.TextPBMRatio, &form_.LabelDone},
                [this] { pause_->start(); });
  return group;
}

void LinkWindow::preview() {
  if (!form_.loaded()) return;
  // A list that is being filled, or a file that is being written, comes first.
  if (form_.Listing || !maker().dispatcher().open()) return pause_->start();
  const auto link =
      form_.TextPBM1.text().empty() ? std::nullopt : erc::previewLink(session_, form_);
  if (!link) {
    lines_->clear();
    place_->setText(QStringLiteral("Choose the channel that is to follow."));
    return;
  }
  QString lines;
  for (const std::string& line : link->lines) {
    lines += shown(line).replace(QLatin1Char('\t'), QStringLiteral("    ")) + QLatin1Char('\n');
  }
  lines.chop(1);
  lines_->setText(lines);
  if (!link->place) {
    place_->setText(QStringLiteral("The figure has no place for this text."));
  } else {
    const auto& place = *link->place;
    place_->setText(QStringLiteral("Behind line %1, in the channel \"%2\"%3")
                        .arg(place.line)
                        .arg(shown(place.channel),
                             place.linked ? QStringLiteral(", which holds a link already.")
                                          : QStringLiteral(".")));
  }
}

}  // namespace norvik::desktop
