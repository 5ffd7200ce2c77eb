#include "desktop/forms/tree_window.h"

#include "builders/phi/cut_branch.h"
#include "builders/phi/phi_lister.h"
#include "desktop/window/headings.h"
#include "desktop/words.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <utility>
#include <vector>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 420;
constexpr int kHeight = 600;
constexpr int kRow = Qt::UserRole;

int rowOf(const QTreeWidgetItem& item) {
  return item.data(0, kRow).toInt();
}

}  // namespace

TreeWindow::TreeWindow(const WindowParts& parts, builders::FormTree& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent),
      session_(parts.session),
      form_(form) {
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  tree_ = new QTreeWidget(this);
  tree_->setObjectName(QString::fromStdString(form.ListPhi.name()));
  tree_->setAccessibleName(QStringLiteral("Body parts"));
  tree_->setHeaderHidden(true);
  column->addWidget(tree_, 1);
  branch_ = new QLabel(this);
  branch_->setObjectName(QStringLiteral("Branch"));
  branch_->setWordWrap(true);
  branch_->setMinimumHeight(branch_->fontMetrics().lineSpacing() * 3);
  branch_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  column->addWidget(branch_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  auto* go = qobject_cast<QPushButton*>(maker().make(form.CommandGo, *this));
  go->setDefault(true);
  go->setToolTip(QStringLiteral("Save the mesh without the marked parts"));
  buttons->addWidget(go);
  auto* close = new QPushButton(QStringLiteral("Close"), this);
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &QWidget::close);
  buttons->addWidget(close);
  column->addLayout(buttons);
  connect(tree_, &QTreeWidget::currentItemChanged, this,
          [this](const QTreeWidgetItem* item, const QTreeWidgetItem*) { choose(item); });
  maker().watch({&form.ListPhi}, [this] {
    fill();
    select();
    showBranch();
  });
  maker().watch({&session_.opening.LabelOBJFileName}, [this] { showBranch(); });
  resize(kWidth, kHeight);
}

void TreeWindow::showEvent(QShowEvent* event) {
  FormWindow::showEvent(event);
  // The mesh may have become another under its name.
  mesh_.clear();
  fill();
  showBranch();
}

/// Hangs each item on the last one that is higher up.
void TreeWindow::fill() {
  const front::ListBox& list = form_.ListPhi;
  if (std::exchange(filled_, true) && shownItems_ == list.itemChanges()) return;
  shownItems_ = list.itemChanges();
  const QSignalBlocker quiet(tree_);
  tree_->clear();
  std::vector<std::pair<double, QTreeWidgetItem*>> above;
  for (int row = 0; row < list.count(); ++row) {
    const builders::TreeItem part = builders::treeItem(list.item(row));
    while (!above.empty() && above.back().first >= part.depth) above.pop_back();
    auto* item = new QTreeWidgetItem({shown(part.name)});
    item->setData(0, kRow, row);
    if (above.empty()) {
      tree_->addTopLevelItem(item);
    } else {
      above.back().second->addChild(item);
    }
    above.emplace_back(part.depth, item);
  }
  tree_->expandAll();
}

/// Follows a selection that somebody else has made in the list.
void TreeWindow::select() {
  const QSignalBlocker quiet(tree_);
  if (form_.ListPhi.index() == front::ListBox::kNone) {
    tree_->setCurrentItem(nullptr);
    return;
  }
  for (QTreeWidgetItemIterator item(tree_); *item != nullptr; ++item) {
    if (rowOf(**item) == form_.ListPhi.index()) tree_->setCurrentItem(*item);
  }
}

void TreeWindow::choose(const QTreeWidgetItem* item) {
  if (item == nullptr || rowOf(*item) == form_.ListPhi.index()) return;
  maker().dispatcher().run(form_.ListPhi.name(), [&] {
    form_.ListPhi.choose(rowOf(*item));
    form_.ListPhi.clicked.raise();
  });
  showBranch();
}

void TreeWindow::readMesh() {
  const std::string& mesh = session_.opening.LabelOBJFileName.caption();
  if (mesh_ == mesh) return;
  mesh_ = mesh;
  groups_.reset();
  text::ignoringErrors([this] { groups_ = builders::readMeshGroups(session_.disk, mesh_); });
}

QString TreeWindow::branchText(const builders::CutPreview& preview, std::size_t names) const {
  if (!groups_) return QStringLiteral("The mesh cannot be read.");
  QString text = QStringLiteral("%1 of %2 parts in the mesh, %3 faces.")
                     .arg(preview.groups)
                     .arg(names)
                     .arg(preview.faces);
  if (preview.missing.empty()) return text;
  QStringList missing;
  for (const std::string& name : preview.missing) missing << shown(name);
  return text + QStringLiteral(" Not in the mesh: ") + missing.join(QStringLiteral(", ")) +
         QLatin1Char('.');
}

/// Marks what the cut will take.
void TreeWindow::showBranch() {
  if (!form_.loaded()) return;
  const int first = form_.ListPhi.index();
  const std::vector<std::string> names = builders::branchNames(form_.ListPhi);
  const int last = first + static_cast<int>(names.size()) - 1;
  for (QTreeWidgetItemIterator item(tree_); *item != nullptr; ++item) {
    const int row = rowOf(**item);
    QFont font = tree_->font();
    // With nothing selected the cut takes all up to the first part of depth 0.
    font.setStrikeOut(row >= first && row <= last);
    (*item)->setFont(0, font);
  }
  readMesh();
  if (form_.ListPhi.count() == 0) {
    branch_->setText(QStringLiteral("No parts are listed."));
  } else if (first == front::ListBox::kNone) {
    branch_->setText(
        QStringLiteral("Select the part that goes with all below it. With nothing "
                       "selected all parts that are struck out go."));
  } else if (groups_) {
    branch_->setText(branchText(builders::previewCut(*groups_, names), names.size()));
  } else {
    branch_->setText(branchText({}, names.size()));
  }
}

}  // namespace norvik::desktop
