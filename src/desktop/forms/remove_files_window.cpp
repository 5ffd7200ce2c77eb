#include "desktop/forms/remove_files_window.h"

#include "desktop/bind/label_button.h"
#include "desktop/forms/pose_parts.h"
#include "desktop/window/headings.h"
#include "desktop/window/hint.h"
#include "desktop/words.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 720;
constexpr int kHeight = 520;

QString sizeText(std::uint64_t bytes) {
  return QLocale().formattedDataSize(static_cast<qint64>(bytes));
}

}  // namespace

RemoveFilesWindow::RemoveFilesWindow(const WindowParts& parts, install::FormRemoveFiles& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent),
      session_(parts.session),
      form_(form) {
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  addFiles(*column);
  addOptions(*column);
  auto* buttons = new QDialogButtonBox(this);
  go_ = &makeLabelButton(maker(), form.LabelGo, *this);
  buttons->addButton(go_, QDialogButtonBox::ActionRole);
  QPushButton* close = buttons->addButton(QDialogButtonBox::Close);
  // Neither is pressed by an Enter in haste.
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, [this] { this->close(); });
  column->addWidget(buttons);
  maker().watch({&form.ListFiles, &form.OptionRemove, &form.OptionBackup}, [this] { weigh(); });
  resize(kWidth, kHeight);
}

void RemoveFilesWindow::addFiles(QVBoxLayout& column) {
  ListView& files = maker().list(form_.ListFiles, *this);
  files.setAccessibleName(QStringLiteral("Files of the figure"));
  files.setItemDelegate(new NotedRows({.chip = {},
                                       .note = [this](int row) { return note(row); },
                                       .marked =
                                           [this](int row) {
                                             const auto at = static_cast<std::size_t>(row);
                                             return at < facts_.size() &&
                                                    (!facts_[at].size || facts_[at].readOnly);
                                           },
                                       .heading = {}},
                                      &files));
  maker().watch({&form_.ListFiles}, [this] { look(); });
  connect(files.selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { weigh(); });
  column.addLayout(makeColumn(QStringLiteral("Files that the figure uses"), &files), 1);
  total_ = new QLabel(this);
  total_->setObjectName(QStringLiteral("SelectedTotal"));
  column.addWidget(total_);
}

void RemoveFilesWindow::addOptions(QVBoxLayout& column) {
  auto* line = new QHBoxLayout;
  line->addWidget(maker().make(form_.OptionRemove, *this));
  line->addWidget(maker().make(form_.OptionBackup, *this));
  line->addSpacing(2 * kPaneMargin);
  QLabel& word = maker().label(form_.LabelDrive, *this);
  QComboBox& drives = maker().drives(form_.Drive1, *this);
  word.setBuddy(&drives);
  line->addWidget(&word);
  line->addWidget(&drives, 1);
  line->addStretch();
  column.addLayout(line);
  QLabel* bin = makeHint(
      QStringLiteral("Removed files go to the waste bin of your system, where it has one. Other "
                     "figures may use the same files."),
      *this);
  column.addWidget(bin);
  maker().watch({&form_.OptionRemove},
                [this, bin] { bin->setVisible(form_.OptionRemove.value()); });
}

/// Asks the disk about the files of a list that is new.
void RemoveFilesWindow::look() {
  if (looked_ == form_.ListFiles.itemChanges() && !facts_.empty()) return;
  looked_ = form_.ListFiles.itemChanges();
  facts_.clear();
  for (const std::string& path : form_.ListFiles.items()) {
    Fact fact;
    text::ignoringErrors([&] {
      fact.size = session_.disk.size(path);
      fact.readOnly = session_.disk.isReadOnly(path);
    });
    facts_.push_back(fact);
  }
}

QString RemoveFilesWindow::note(int row) const {
  const auto at = static_cast<std::size_t>(row);
  if (at >= facts_.size()) return {};
  if (!facts_[at].size) return QStringLiteral("not there");
  const QString size = sizeText(*facts_[at].size);
  return facts_[at].readOnly ? QStringLiteral("read-only, ") + size : size;
}

void RemoveFilesWindow::weigh() {
  std::uint64_t bytes = 0;
  int files = 0;
  for (const int index : form_.ListFiles.selection()) {
    const auto at = static_cast<std::size_t>(index);
    if (at >= facts_.size() || !facts_[at].size) continue;
    bytes += *facts_[at].size;
    ++files;
  }
  if (total_ != nullptr) {
    total_->setText(files == 0 ? QStringLiteral("Nothing selected")
                               : QStringLiteral("%1 selected, %2")
                                     .arg(files == 1 ? QStringLiteral("1 file")
                                                     : QStringLiteral("%1 files").arg(files),
                                          sizeText(bytes)));
  }
  const bool chosen = form_.OptionRemove.value() || form_.OptionBackup.value();
  if (go_ != nullptr) go_->setEnabled(chosen && !form_.ListFiles.selection().empty());
}

}  // namespace norvik::desktop
