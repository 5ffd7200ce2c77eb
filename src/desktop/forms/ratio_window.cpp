#include "desktop/forms/ratio_window.h"

#include "desktop/bind/list_model.h"
#include "desktop/window/headings.h"
#include "desktop/window/list_filter.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 560;
constexpr int kHeight = 640;

}  // namespace

RatioWindow::RatioWindow(const WindowParts& parts, erc::FormListEMCs& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent), form_(form) {
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  QLabel& title = maker().pathLabel(form.LabelTitle, *this);
  makeFileHeading(title, QStringLiteral("Figure"));
  column->addWidget(&title);
  list_ = &maker().list(form.ListEMCs, *this);
  list_->setAccessibleName(QStringLiteral("Channels and links"));
  auto* filter = new ListFilter(form.ListEMCs, *list_, *this);
  filter->stay();
  column->addWidget(filter);
  column->addWidget(list_, 1);
  auto* hint = new QLabel(
      QStringLiteral(
          "A double click on a ratio takes it below; Ctrl+Up and Ctrl+Down go from ratio "
          "to ratio."),
      this);
  hint->setWordWrap(true);
  hint->setForegroundRole(QPalette::PlaceholderText);
  column->addWidget(hint);
  auto* line = new QHBoxLayout;
  QLabel& word = maker().label(form.Label1, *this);
  ratio_ = &maker().line(form.Text1, *this);
  ratio_->setAccessibleName(QStringLiteral("New ratio"));
  word.setBuddy(ratio_);
  line->addWidget(&word);
  line->addWidget(ratio_, 1);
  column->addLayout(line);
  // The tool chooses the field at each double click, also when it had chosen it before.
  connect(list_, &QAbstractItemView::doubleClicked, ratio_, [this] {
    ratio_->setFocus();
    ratio_->selectAll();
  });
  list_->installEventFilter(this);
  ratio_->installEventFilter(this);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this,
          [this] { openFilter(*this); });
  resize(kWidth, kHeight);
}

bool RatioWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool arrow = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down;
    if (arrow && key->modifiers().testFlag(Qt::ControlModifier)) {
      goToRatio(key->key() == Qt::Key_Up ? -1 : 1);
      return true;
    }
  }
  return FormWindow::eventFilter(watched, event);
}

/// Chooses the next ratio as a double click on it does.
void RatioWindow::goToRatio(int step) {
  front::ListBox& list = form_.ListEMCs;
  const auto* shownItems = dynamic_cast<const ListModel*>(list_->model());
  for (int item = list.index() + step; item >= 0 && item < list.count(); item += step) {
    const int row = shownItems == nullptr ? -1 : shownItems->rowOf(item);
    if (row < 0 || !list.item(item).starts_with("\tDelta")) continue;
    list.choose(item);
    maker().dispatcher().raise(list.doubleClicked);
    list_->scrollTo(list_->model()->index(row, 0));
    ratio_->setFocus();
    ratio_->selectAll();
    return;
  }
}

}  // namespace norvik::desktop
