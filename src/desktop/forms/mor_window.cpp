#include "desktop/forms/mor_window.h"

#include "desktop/bind/list_model.h"
#include "desktop/forms/pose_parts.h"
#include "desktop/window/headings.h"
#include "desktop/window/list_filter.h"
#include "desktop/words.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 460;
constexpr int kHeight = 600;
constexpr int kValueWidth = 120;

/// The morphs with their values under their actors; a value that is not 0 stands out.
ListView& makeMorphs(Maker& maker, pose::FormMOR& form, QWidget& parent) {
  ListView& morphs = maker.list(form.ListMorphs, parent);
  const front::ListBox& values = form.ListValues;
  const auto actorOf = [&form](int item) {
    const auto index = static_cast<std::size_t>(item);
    return index < form.actors.size() ? shown(form.actors[index]) : QString();
  };
  if (auto* model = dynamic_cast<ListModel*>(morphs.model())) model->setFurtherText(actorOf);
  morphs.setUniformItemSizes(false);
  morphs.setItemDelegate(
      new NotedRows({.chip = {},
                     .note = [&values](int row) { return shown(values.item(row)); },
                     .marked = [&values](int row) { return values.item(row) != "0"; },
                     .heading = actorOf},
                    &morphs));
  maker.watch({&form.ListValues}, [&morphs] { morphs.viewport()->update(); });
  return morphs;
}

}  // namespace

MorWindow::MorWindow(const WindowParts& parts, pose::FormMOR& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent) {
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  QLabel& file = maker().pathLabel(form.LabelFileName, *this);
  makeFileHeading(file, QStringLiteral("Source file"));
  column->addWidget(&file);
  ListView& morphs = makeMorphs(maker(), form, *this);
  auto* filter = new ListFilter(form.ListMorphs, morphs, *this);
  filter->stay();
  column->addWidget(filter);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this,
          [this] { openFilter(*this); });
  column->addLayout(makeColumn(QStringLiteral("Morphs"), &morphs), 1);

  auto* line = new QHBoxLayout;
  QLabel& word = maker().label(form.LabelValue, *this);
  QLineEdit& value = maker().line(form.TextValue, *this);
  value.setAccessibleName(QStringLiteral("Value"));
  value.setPlaceholderText(QStringLiteral("0"));
  value.setFixedWidth(kValueWidth);
  word.setBuddy(&value);
  auto* hint = new QLabel(QStringLiteral("Enter sets it for all morphs of that name"), this);
  hint->setForegroundRole(QPalette::PlaceholderText);
  line->addWidget(&word);
  line->addWidget(&value);
  line->addWidget(hint, 1);
  column->addLayout(line);
  column->addWidget(makeDoneRow(maker(), form.LabelDone, form.LabelCancel, *this));
  // The tool chooses the field anew at each double click, also when it had chosen it before.
  connect(&morphs, &QAbstractItemView::doubleClicked, &value, [&value] {
    value.setFocus();
    value.selectAll();
  });
  resize(kWidth, kHeight);
}

}  // namespace norvik::desktop
