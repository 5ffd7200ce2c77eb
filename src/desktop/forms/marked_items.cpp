#include "desktop/forms/marked_items.h"

#include <QApplication>
#include <QHelpEvent>
#include <QStyle>
#include <QToolTip>

namespace norvik::desktop {

bool MarkedItems::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                            const QStyleOptionViewItem& option, const QModelIndex& index) {
  const bool asked = event->type() == QEvent::ToolTip && index.isValid();
  const QString reason = asked ? reason_(index) : QString();
  if (reason.isEmpty()) return QStyledItemDelegate::helpEvent(event, view, option, index);
  QToolTip::showText(event->globalPos(), reason);
  return true;
}

QSize MarkedItems::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  constexpr int kAir = 5;  // as between the rows of the other lists
  return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kAir);
}

void MarkedItems::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const QString words = words_ ? words_(index) : QString();
  if (words.isEmpty()) return;
  option->text += QStringLiteral("  (") + words + QLatin1Char(')');
  option->font.setItalic(true);
  option->features |= QStyleOptionViewItem::HasDecoration;
  option->icon = QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
  const int size = option->fontMetrics.height();
  option->decorationSize = QSize(size, size);
}

}  // namespace norvik::desktop
