#include "desktop/window/pending_list.h"

#include "desktop/window/headings.h"
#include "desktop/words.h"
#include "obj/pending_renames.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace norvik::desktop {

namespace {

constexpr int kMostRows = 5;

/// What was taken back unasked, in words.
QString inWords(const std::vector<std::string>& entries) {
  QStringList words;
  for (const std::string& entry : entries) words << shown(obj::renameInWords(entry));
  return QStringLiteral("Taken back with it: ") + words.join(QStringLiteral(", "));
}

}  // namespace

PendingList::PendingList(Maker& maker, front::FormOBJ& form, Kind kind, QWidget& parent)
    : QWidget(&parent),
      maker_(maker),
      form_(form),
      kind_(kind),
      renames_(kind == Kind::groups ? form.ListGrpRen : form.ListMatRen),
      names_(kind == Kind::groups ? form.ListGroups : form.ListMaterials),
      listing_(kind == Kind::groups ? form.RichTextBoxGroups : form.RichTextBoxMaterials),
      saved_(kind == Kind::groups ? form.ListGroupsSave : form.ListMaterialsSave),
      list_(new QListWidget(this)),
      back_(new QPushButton(QStringLiteral("&Take back"), this)),
      also_(new QLabel(this)) {
  const QString name = QString::fromStdString(renames_.name());
  setObjectName(QStringLiteral("Pending.") + name);
  auto* heading = new QLabel(QStringLiteral("&Written when you leave"), this);
  makeHeading(*heading);
  heading->setBuddy(list_);
  list_->setObjectName(QStringLiteral("PendingRows.") + name);
  list_->setAccessibleName(QStringLiteral("Renames that are not written yet"));
  list_->setToolTip(QStringLiteral("Delete takes the chosen one back"));
  list_->setTextElideMode(Qt::ElideMiddle);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setUniformItemSizes(true);
  list_->installEventFilter(this);
  back_->setObjectName(QStringLiteral("TakeBack.") + name);
  back_->setAutoDefault(false);
  also_->setObjectName(QStringLiteral("AlsoTakenBack.") + name);
  also_->setWordWrap(true);
  also_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  also_->hide();

  auto* head = new QHBoxLayout;
  head->addWidget(heading, 1);
  head->addWidget(back_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(head);
  column->addWidget(list_);
  column->addWidget(also_);

  connect(back_, &QPushButton::clicked, this, [this] { takeBack(); });
  connect(list_, &QListWidget::currentRowChanged, this,
          [this](int row) { back_->setEnabled(row >= 0); });
  // The renames never change without the names.
  maker.watch({&names_, &listing_, &saved_}, [this] { fill(); });
}

void PendingList::fill() {
  if (seen_ != renames_.itemChanges()) {
    seen_ = renames_.itemChanges();
    also_->clear();
    also_->hide();
    const int row = list_->currentRow();
    list_->clear();
    for (const std::string& entry : renames_.items()) {
      const QString words = shown(obj::renameInWords(entry));
      list_->addItem(words);
      list_->item(list_->count() - 1)->setToolTip(words);
    }
    list_->setCurrentRow(std::min(row, list_->count() - 1));
    const int rows = std::clamp(list_->count(), 1, kMostRows);
    const int height = std::max(list_->sizeHintForRow(0), list_->fontMetrics().height());
    list_->setFixedHeight(rows * height + 2 * list_->frameWidth());
    back_->setEnabled(list_->currentRow() >= 0);
  }
  // What is to be saved is chosen among the names as they are in the file.
  const bool beside = (names_.visible() || listing_.visible()) && !saved_.visible();
  setVisible(beside && (list_->count() > 0 || !also_->text().isEmpty()));
}

void PendingList::takeBack() {
  const int row = list_->currentRow();
  if (row < 0) return;
  front::RenameBack back{.materials = kind_ == Kind::materials, .index = row};
  maker_.dispatcher().raise(form_.renameTakenBack, back);
  if (back.also.empty()) return;
  also_->setText(inWords(back.also));
  also_->show();
  fill();
}

bool PendingList::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto& key = *static_cast<QKeyEvent*>(event);
  if (key.key() != Qt::Key_Delete || key.modifiers() != Qt::NoModifier) {
    return QWidget::eventFilter(watched, event);
  }
  takeBack();
  return true;
}

}  // namespace norvik::desktop
