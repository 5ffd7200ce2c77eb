#include "desktop/forms/weld_window.h"

#include "desktop/bind/label_button.h"
#include "desktop/forms/pose_parts.h"
#include "desktop/window/headings.h"
#include "desktop/words.h"
#include "text/columns.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 760;
constexpr int kHeight = 560;
constexpr int kFewRows = 110;

/// The rows of the two sides.
enum Row : int { kHeads, kFiles, kLists, kFeet };

/// The last number of a key line, which is the morph's value.
std::string_view valueOf(std::string_view keyLine) {
  const auto end = keyLine.find_last_not_of(" \t");
  if (end == std::string_view::npos) return {};
  keyLine = keyLine.substr(0, end + 1);
  return keyLine.substr(keyLine.find_last_of(" \t") + 1);
}

/// The value that the first pose has for a morph; nothing if it has none of that name.
std::string_view firstValue(const pose::FormPZ2Combine& form, std::string_view name) {
  for (int i = 0; i < form.ListFile1.count(); ++i) {
    if (form.ListFile1.item(i) == name) return valueOf(form.ListKeyLinesFirst.item(i));
  }
  return {};
}

/// Whether the second pose has another value than the first for the morph in a row.
bool differs(const pose::FormPZ2Combine& form, int row) {
  return firstValue(form, form.ListFile2.item(row)) != valueOf(form.ListKeyLines.item(row));
}

}  // namespace

WeldWindow::WeldWindow(const WindowParts& parts, pose::FormPZ2Combine& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent), form_(form) {
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  auto* sides = new QGridLayout;
  sides->setHorizontalSpacing(2 * kPaneMargin);
  sides->setRowStretch(kLists, 1);
  sides->setColumnStretch(0, 1);
  sides->setColumnStretch(1, 1);
  addFirst(*sides);
  addSecond(*sides);
  column->addLayout(sides, 1);
  addMissing(*column);
  column->addWidget(makeDoneRow(maker(), form.LabelDone, form.LabelCancel, *this));
  resize(kWidth, kHeight);
}

void WeldWindow::addFirst(QGridLayout& sides) {
  sides.addWidget(new QLabel(QStringLiteral("Receives"), this), kHeads, 0);
  QLabel& file = maker().pathLabel(form_.LabelFileFirst, *this);
  makeFileHeading(file, QStringLiteral("File that receives"));
  sides.addWidget(&file, kFiles, 0);
  ListView& morphs = maker().list(form_.ListFile1, *this);
  const front::ListBox& keys = form_.ListKeyLinesFirst;
  morphs.setItemDelegate(
      new NotedRows({.chip = {},
                     .note = [&keys](int row) { return shown(valueOf(keys.item(row))); },
                     .marked = {},
                     .heading = {}},
                    &morphs));
  sides.addLayout(makeColumn(QStringLiteral("Morphs"), &morphs), kLists, 0);
  sides.addWidget(&maker().label(form_.LabelKey1, *this), kFeet, 0);
}

void WeldWindow::addSecond(QGridLayout& sides) {
  auto* head = new QHBoxLayout;
  head->addWidget(new QLabel(QStringLiteral("Gives"), this), 1);
  head->addWidget(&makeLabelButton(maker(), form_.LabelOpenSecond, *this));
  sides.addLayout(head, kHeads, 1);
  QLabel& file = maker().pathLabel(form_.LabelFileSecond, *this);
  makeFileHeading(file, QStringLiteral("File that gives"));
  sides.addWidget(&file, kFiles, 1);
  ListView& morphs = maker().list(form_.ListFile2, *this);
  // Each click turns one over: settings are checked off one by one.
  morphs.setSelectionMode(QAbstractItemView::MultiSelection);
  const front::ListBox& keys = form_.ListKeyLines;
  morphs.setItemDelegate(
      new NotedRows({.chip = {},
                     .note = [&keys](int row) { return shown(valueOf(keys.item(row))); },
                     .marked = [this](int row) { return differs(form_, row); },
                     .heading = {}},
                    &morphs));
  sides.addLayout(makeColumn(QStringLiteral("Settings to carry over"), &morphs), kLists, 1);
  auto* foot = new QHBoxLayout;
  foot->addWidget(&maker().label(form_.LabelKey2, *this), 1);
  auto* all = new QPushButton(QStringLiteral("Select all that differ"), this);
  all->setAutoDefault(false);
  connect(all, &QPushButton::clicked, this, [this] { selectDiffering(); });
  foot->addWidget(all);
  sides.addLayout(foot, kFeet, 1);
}

void WeldWindow::selectDiffering() {
  maker().dispatcher().run([this] {
    for (int row = 0; row < form_.ListFile2.count(); ++row) {
      form_.ListFile2.setSelected(row, differs(form_, row));
    }
  });
}

void WeldWindow::addMissing(QLayout& column) {
  auto* heading =
      new QLabel(QStringLiteral("Inserted, though the first file does not have them"), this);
  makeHeading(*heading);
  ListView& missing = maker().list(form_.ListNotFound, *this);
  missing.setMaximumHeight(kFewRows);
  heading->setBuddy(&missing);
  column.addWidget(heading);
  column.addWidget(&missing);
  maker().showWhileAny(*heading, {&form_.ListNotFound});
}

}  // namespace norvik::desktop
