#include "desktop/forms/material_coordinator_window.h"

#include "desktop/elided_label.h"
#include "desktop/forms/marked_items.h"
#include "desktop/window/headings.h"
#include "desktop/words.h"
#include "materials/coordination_outcome.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

void copyItems(const front::ListBox& list) {
  QString text;
  for (const std::string& item : list.items()) text += shown(item) + QLatin1Char('\n');
  QGuiApplication::clipboard()->setText(text);
}

}  // namespace

MaterialCoordinatorWindow::MaterialCoordinatorWindow(Maker& maker, front::Session& session,
                                                     materials::FormMatCoord& form,
                                                     std::function<void()> unload, QWidget* parent)
    : FormWindow(maker, form, std::move(unload), parent) {
  auto* column = new QVBoxLayout(this);
  auto* path = new ElidedLabel(this);
  path->setAccessibleName(QStringLiteral("OBJ file"));
  const front::Label& obj = session.opening.LabelOBJFileName;
  maker.watch({&session.opening.LabelOBJFileName},
              [path, &obj] { path->setText(QStringLiteral("OBJ: ") + shown(obj.caption())); });
  column->addWidget(path);

  auto* lists = new QSplitter(Qt::Horizontal, this);
  lists->setObjectName(QStringLiteral("CoordinatedLists"));
  lists->setChildrenCollapsible(false);
  lists->addWidget(
      makeColumn(form.LabelCR2Mat, form.ListCR2Mat,
                 {[&form](int row) { return materials::stayedInFigure(form.ListCR2Mat.item(row)); },
                  QStringLiteral("still there"),
                  QStringLiteral("This material stays in the figure: lines with \"Material\" in "
                                 "them are never tested.")}));
  lists->addWidget(makeColumn(form.LabelMatsNotInCR2, form.ListMatsNotInCR2, {}));
  lists->addWidget(makeColumn(
      form.LabelOBJMat, form.ListOBJMat,
      {[&form](int row) { return materials::wentAlong(form, form.ListOBJMat.item(row)); },
       QStringLiteral("removed too"),
       QStringLiteral("The OBJ uses this material, but its name ends like that of a "
                      "removed one, and so it went along. Coordinate the saved figure "
                      "again to get it back as a plain one.")}));
  column->addWidget(lists, 1);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  buttons->button(QDialogButtonBox::Close)->setDefault(true);
  connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
  column->addWidget(buttons);
  buttons->button(QDialogButtonBox::Close)->setFocus();
  resize(720, 460);
}

QWidget* MaterialCoordinatorWindow::makeColumn(front::Label& heading, front::ListBox& list,
                                               const Marks& marks) {
  auto* side = new QWidget(this);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  auto& title = maker().label(heading, *side);
  makeHeading(title);
  title.setWordWrap(true);
  column->addWidget(&title);
  auto& view = maker().list(list, *side);
  view.setAccessibleName(shown(heading.caption()));
  if (marks.isMarked) {
    const auto textOf = [marked = marks.isMarked](const QString& text) {
      return [marked, text](const QModelIndex& index) {
        return marked(index.row()) ? text : QString();
      };
    };
    view.setItemDelegate(new MarkedItems(textOf(marks.words), textOf(marks.reason), &view));
  }
  column->addWidget(&view, 1);

  auto* foot = new QHBoxLayout;
  auto* count = new QLabel(side);
  foot->addWidget(count, 1);
  auto* copy = new QPushButton(QStringLiteral("Copy"), side);
  copy->setAccessibleName(QStringLiteral("Copy ") + shown(heading.caption()));
  copy->setAutoDefault(false);
  foot->addWidget(copy);
  column->addLayout(foot);
  connect(copy, &QPushButton::clicked, side, [&list] { copyItems(list); });
  maker().watch({&list}, [&list, count, copy] {
    count->setText(list.count() == 1 ? QStringLiteral("1 material")
                                     : QStringLiteral("%1 materials").arg(list.count()));
    copy->setEnabled(list.count() > 0);
  });
  return side;
}

}  // namespace norvik::desktop
