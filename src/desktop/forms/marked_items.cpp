#include "desktop/forms/marked_items.h"

#include <QApplication>
#include <QHelpEvent>
#include <QStyle>
#include <QToolTip>

namespace norvik::desktop {

bool MarkedItems::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                            const QStyleOptionViewItem& option, const QModelIndex& index) {
  const Mark mark = index.isValid() ? markOf_(index.row()) : Mark{};
  if (event->type() != QEvent::ToolTip || mark.reason.isEmpty()) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  QToolTip::showText(event->globalPos(), mark.reason);
  return true;
}

void MarkedItems::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const Mark mark = markOf_(index.row());
  if (mark.words.isEmpty()) return;
  option->text += QStringLiteral("  (") + mark.words + QLatin1Char(')');
  option->font.setItalic(true);
  option->features |= QStyleOptionViewItem::HasDecoration;
  option->icon = QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
  const int size = option->fontMetrics.height();
  option->decorationSize = QSize(size, size);
}

}  // namespace norvik::desktop
