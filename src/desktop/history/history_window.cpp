#include "desktop/history/history_window.h"

#include "desktop/history/changes_window.h"
#include "desktop/words.h"

#include <QDesktopServices>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

enum Column { kTime, kFile, kWhat, kTool, kSize, kFolder, kColumns };
constexpr int kNumberRole = Qt::UserRole;

QString folderOf(const std::string& path) {
  const auto backslash = path.find_last_of('\\');
  return backslash == std::string::npos ? QString{} : shown(path.substr(0, backslash));
}

}  // namespace

HistoryWindow::HistoryWindow(Restorer& restorer, QWidget* parent)
    : QDialog(parent),
      restorer_(restorer),
      filter_(new QLineEdit(this)),
      list_(new QTreeWidget(this)),
      state_(new QLabel(this)),
      restore_(new QPushButton(QStringLiteral("&Restore"), this)),
      changes_(new QPushButton(QStringLiteral("Show &Changes"), this)),
      reveal_(new QPushButton(QStringLiteral("Re&veal"), this)) {
  setObjectName(QStringLiteral("HistoryWindow"));
  setWindowTitle(QStringLiteral("History"));
  filter_->setObjectName(QStringLiteral("HistoryFilter"));
  filter_->setPlaceholderText(QStringLiteral("Filter by file, folder, tool or time"));
  filter_->setAccessibleName(QStringLiteral("Filter"));
  filter_->setClearButtonEnabled(true);
  list_->setObjectName(QStringLiteral("HistoryList"));
  list_->setAccessibleName(QStringLiteral("Earlier versions"));
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAlternatingRowColors(true);
  list_->setHeaderLabels({QStringLiteral("Time"), QStringLiteral("File"), QStringLiteral("What"),
                          QStringLiteral("Tool"), QStringLiteral("Size"),
                          QStringLiteral("Folder")});
  restore_->setObjectName(QStringLiteral("HistoryRestore"));
  restore_->setToolTip(QStringLiteral("Puts this version back; the file as it is now is kept"));
  changes_->setObjectName(QStringLiteral("HistoryChanges"));
  changes_->setToolTip(QStringLiteral("Shows the lines in which this version and the file differ"));
  reveal_->setObjectName(QStringLiteral("HistoryReveal"));
  reveal_->setToolTip(QStringLiteral("Opens the folder that this version is kept in"));
  for (QPushButton* button : {restore_, changes_, reveal_}) button->setAutoDefault(false);
  makeLayout();
  connect(filter_, &QLineEdit::textChanged, this, [this] { applyFilter(); });
  connect(list_, &QTreeWidget::itemSelectionChanged, this, [this] { updateButtons(); });
  connect(list_, &QTreeWidget::itemActivated, this, [this] { showChosen(); });
  connect(restore_, &QPushButton::clicked, this, [this] { restoreChosen(); });
  connect(changes_, &QPushButton::clicked, this, [this] { showChosen(); });
  connect(reveal_, &QPushButton::clicked, this, [this] { revealChosen(); });
  resize(900, 460);
}

void HistoryWindow::makeLayout() {
  auto* column = new QVBoxLayout(this);
  column->addWidget(filter_);
  column->addWidget(list_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(state_, 1);
  buttons->addWidget(restore_);
  buttons->addWidget(changes_);
  buttons->addWidget(reveal_);
  auto* close = new QPushButton(QStringLiteral("Close"), this);
  close->setObjectName(QStringLiteral("HistoryClose"));
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  buttons->addWidget(close);
  column->addLayout(buttons);
}

void HistoryWindow::showEvent(QShowEvent* event) {
  refresh();
  filter_->setFocus();
  QDialog::showEvent(event);
}

void HistoryWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  // The tools may have been at work meanwhile.
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) refresh();
}

void HistoryWindow::refresh() {
  const auto before = chosen();
  entries_ = restorer_.history() == nullptr ? std::vector<text::HistoryEntry>{}
                                            : restorer_.history()->entries();
  list_->clear();
  const QLocale locale;
  for (const text::HistoryEntry& entry : entries_) {
    auto* item = new QTreeWidgetItem(list_);
    item->setText(kTime, shown(entry.when));
    item->setText(kFile, shown(text::fileTitle(entry.path)));
    item->setText(kWhat, shown(text::lossName(entry.what)));
    item->setText(kTool, shown(entry.tool));
    item->setText(kSize, locale.formattedDataSize(static_cast<qint64>(entry.size)));
    item->setTextAlignment(kSize, Qt::AlignRight | Qt::AlignVCenter);
    item->setText(kFolder, folderOf(entry.path));
    item->setToolTip(kFile, shown(entry.path));
    item->setToolTip(kFolder, shown(entry.path));
    item->setData(kTime, kNumberRole, QVariant::fromValue<qulonglong>(entry.number));
    if (before && before->number == entry.number) list_->setCurrentItem(item);
  }
  for (int i = 0; i < kFolder; ++i) list_->resizeColumnToContents(i);
  applyFilter();
}

void HistoryWindow::applyFilter() {
  const QString wanted = filter_->text().trimmed();
  int seen = 0;
  for (int row = 0; row < list_->topLevelItemCount(); ++row) {
    QTreeWidgetItem* item = list_->topLevelItem(row);
    bool fits = wanted.isEmpty();
    for (int i = 0; i < kColumns && !fits; ++i) {
      fits = item->text(i).contains(wanted, Qt::CaseInsensitive);
    }
    item->setHidden(!fits);
    if (fits) ++seen;
  }
  const auto all = list_->topLevelItemCount();
  if (restorer_.history() == nullptr || all == 0) {
    state_->setText(QStringLiteral("No earlier version is kept."));
  } else if (!wanted.isEmpty()) {
    state_->setText(QStringLiteral("%1 of %2").arg(seen).arg(all));
  } else {
    state_->setText(all == 1 ? QStringLiteral("One earlier version")
                             : QStringLiteral("%1 earlier versions").arg(all));
  }
  updateButtons();
}

std::optional<text::HistoryEntry> HistoryWindow::chosen() const {
  const auto selected = list_->selectedItems();
  if (selected.isEmpty() || selected.front()->isHidden()) return std::nullopt;
  const auto number = selected.front()->data(kTime, kNumberRole).toULongLong();
  for (const text::HistoryEntry& entry : entries_) {
    if (entry.number == number) return entry;
  }
  return std::nullopt;
}

void HistoryWindow::updateButtons() {
  const bool any = chosen().has_value();
  for (QPushButton* button : {restore_, changes_, reveal_}) button->setEnabled(any);
}

void HistoryWindow::restoreChosen() {
  const auto entry = chosen();
  if (!entry) return;
  const bool done = restorer_.restore(entry->number);
  refresh();
  if (done) state_->setText(shown(text::fileTitle(entry->path)) + QStringLiteral(" is back"));
}

void HistoryWindow::showChosen() {
  const auto entry = chosen();
  if (!entry) return;
  showChanges(
      {.before = restorer_.history()->fileOf(*entry),
       .after = entry->hostPath,
       .title = QStringLiteral("Changes in ") + shown(text::fileTitle(entry->path)),
       .explanation = QStringLiteral("From the version that was kept (%1) to the file as it "
                                     "is now.")
                          .arg(inWords(*entry))},
      this);
}

void HistoryWindow::revealChosen() {
  const auto entry = chosen();
  if (!entry) return;
  const std::string file = restorer_.history()->fileOf(*entry);
  const auto folder = hostName(file.substr(0, file.find_last_of('/')));
  QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

}  // namespace norvik::desktop
