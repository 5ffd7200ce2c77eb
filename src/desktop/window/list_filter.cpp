#include "desktop/window/list_filter.h"

#include "desktop/bind/list_model.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace norvik::desktop {

ListFilter::ListFilter(front::ListBox& list, ListView& view, QWidget& parent)
    : QWidget(&parent),
      list_(list),
      view_(view),
      edit_(new QLineEdit(this)),
      count_(new QLabel(this)) {
  const QString name = QString::fromStdString(list.name());
  edit_->setObjectName(QStringLiteral("Filter.") + name);
  edit_->setPlaceholderText(QStringLiteral("Show what holds ..."));
  edit_->setAccessibleName(QStringLiteral("Filter of the list ") + view.accessibleName());
  edit_->setClearButtonEnabled(true);
  edit_->installEventFilter(this);
  count_->setObjectName(QStringLiteral("FilterCount.") + name);
  count_->setForegroundRole(QPalette::PlaceholderText);
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(edit_, 1);
  line->addWidget(count_);
  // It stands over its list, and so does Tab come to it.
  setTabOrder(edit_, &view);
  hide();

  connect(edit_, &QLineEdit::textChanged, this, [this](const QString& text) {
    view_.setFilter(text);
    count();
  });
  connect(view.model(), &QAbstractItemModel::modelReset, this, [this] { count(); });
  connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { count(); });
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
  view_.setFocus(Qt::OtherFocusReason);
}

void ListFilter::count() {
  const auto* items = dynamic_cast<const ListModel*>(view_.model());
  if (items == nullptr || !items->filtered()) {
    count_->clear();
    return;
  }
  QString text = QStringLiteral("%1 of %2").arg(items->rowCount()).arg(items->items());
  const std::vector<int> selection = list_.selection();
  const auto hidden = std::count_if(selection.begin(), selection.end(),
                                    [items](int item) { return items->rowOf(item) < 0; });
  if (hidden > 0) text += QStringLiteral(", %1 selected not shown").arg(hidden);
  count_->setText(text);
}

bool ListFilter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    switch (static_cast<QKeyEvent*>(event)->key()) {
      case Qt::Key_Escape:
        if (stays_ && edit_->text().isEmpty()) break;
        dismiss();
        return true;
      case Qt::Key_Return:
      case Qt::Key_Enter:
      case Qt::Key_Down:
        view_.setFocus(Qt::OtherFocusReason);
        return true;
      default:
        break;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void openFilter(QWidget& window, const front::ListBox* otherwise) {
  const QWidget* keys = QApplication::focusWidget();
  ListFilter* chosen = nullptr;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    auto* filter = dynamic_cast<ListFilter*>(widget);
    if (filter == nullptr || !filter->view().isVisible()) continue;
    const bool hasKeys = keys != nullptr && filter->parentWidget()->isAncestorOf(keys);
    const bool isOther = otherwise == nullptr || &filter->list() == otherwise;
    if (hasKeys || (chosen == nullptr && isOther)) chosen = filter;
  }
  if (chosen != nullptr) chosen->open();
}

}  // namespace norvik::desktop
