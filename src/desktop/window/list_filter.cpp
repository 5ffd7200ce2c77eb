#include "desktop/window/list_filter.h"

#include "desktop/bind/list_model.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>
#include <utility>

namespace norvik::desktop {

ListFilter::ListFilter(front::ListBox& list, ListView& view, QWidget& parent)
    : ListFilter({view, QString::fromStdString(list.name()),
                  [&view](const QString& text) { view.setFilter(text); },
                  [&list, &view] { return toldOf(list, view); }},
                 parent) {
  list_ = &list;
  stays_ = false;
  hide();
  connect(view.model(), &QAbstractItemModel::modelReset, this, [this] { count(); });
  connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { count(); });
}

ListFilter::ListFilter(Narrowed narrowed, QWidget& parent)
    : QWidget(&parent),
      narrowed_(std::move(narrowed)),
      stays_(true),
      edit_(new QLineEdit(this)),
      count_(new QLabel(this)) {
  QWidget& view = narrowed_.view;
  edit_->setObjectName(QStringLiteral("Filter.") + narrowed_.name);
  edit_->setPlaceholderText(QStringLiteral("Show what holds ..."));
  edit_->setAccessibleName(QStringLiteral("Filter of the list ") + view.accessibleName());
  edit_->setClearButtonEnabled(true);
  edit_->installEventFilter(this);
  view.installEventFilter(this);
  count_->setObjectName(QStringLiteral("FilterCount.") + narrowed_.name);
  count_->setForegroundRole(QPalette::PlaceholderText);
  count_->hide();
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(edit_, 1);
  line->addWidget(count_);
  setVisible(!view.isHidden());

  connect(edit_, &QLineEdit::textChanged, this, [this](const QString& text) {
    narrowed_.narrow(text);
    count();
  });
}

void ListFilter::open() {
  show();
  edit_->setFocus(Qt::ShortcutFocusReason);
  edit_->selectAll();
  count();
}

void ListFilter::stay() {
  stays_ = true;
  show();
}

void ListFilter::dismiss() {
  edit_->clear();
  if (!stays_) hide();
  narrowed_.view.setFocus(Qt::OtherFocusReason);
}

void ListFilter::count() {
  count_->setText(narrowed_.told());
  count_->setVisible(!count_->text().isEmpty());
}

/// What was typed is gone when the list comes up again.
void ListFilter::followView(const QEvent& event) {
  if (!stays_) return;
  if (event.type() == QEvent::ShowToParent) show();
  if (event.type() != QEvent::HideToParent) return;
  edit_->clear();
  hide();
}

/// It stands over its list, and so does Tab come to it. Said once the window has all its controls:
/// of two alone each comes before the other.
void ListFilter::showEvent(QShowEvent* event) {
  setTabOrder(edit_, &narrowed_.view);
  QWidget::showEvent(event);
}

bool ListFilter::eventFilter(QObject* watched, QEvent* event) {
  if (watched != edit_) {
    followView(*event);
    return false;
  }
  if (event->type() == QEvent::KeyPress) {
    switch (static_cast<QKeyEvent*>(event)->key()) {
      case Qt::Key_Escape:
        if (stays_ && edit_->text().isEmpty()) break;
        dismiss();
        return true;
      case Qt::Key_Return:
      case Qt::Key_Enter:
      case Qt::Key_Down:
        narrowed_.view.setFocus(Qt::OtherFocusReason);
        return true;
      default:
        break;
    }
  }
  return QWidget::eventFilter(watched, event);
}

QString toldOf(const front::ListBox& list, const ListView& view) {
  const auto* items = dynamic_cast<const ListModel*>(view.model());
  if (items == nullptr || !items->filtered()) return {};
  QString text = QStringLiteral("%1 of %2").arg(items->rowCount()).arg(items->items());
  const std::vector<int> selection = list.selection();
  const auto hidden = std::count_if(selection.begin(), selection.end(),
                                    [items](int item) { return items->rowOf(item) < 0; });
  if (hidden > 0) text += QStringLiteral(", %1 selected not shown").arg(hidden);
  return text;
}

void openFilter(QWidget& window, const front::ListBox* otherwise) {
  const QWidget* keys = QApplication::focusWidget();
  ListFilter* chosen = nullptr;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    auto* filter = dynamic_cast<ListFilter*>(widget);
    if (filter == nullptr || !filter->view().isVisible()) continue;
    const bool hasKeys = keys != nullptr && filter->parentWidget()->isAncestorOf(keys);
    const bool isOther = otherwise == nullptr || filter->list() == otherwise;
    if (hasKeys || (chosen == nullptr && isOther)) chosen = filter;
  }
  if (chosen != nullptr) chosen->open();
}

}  // namespace norvik::desktop
