#include "desktop/window/dial_names.h"

#include "channels/dials/reorder_item.h"
#include "desktop/words.h"

#include <QStyledItemDelegate>

namespace norvik::desktop {

namespace {

class DialNames : public QStyledItemDelegate {
 public:
  DialNames(bool withActor, QObject* parent) : QStyledItemDelegate(parent), withActor_(withActor) {}

  QString displayText(const QVariant& value, const QLocale& locale) const override {
    const QString text = QStyledItemDelegate::displayText(value, locale);
    const channels::ReorderItem item(typed(text));
    QString name = shown(item.dial());
    if (item.internalName() != item.dial()) {
      name += QStringLiteral(" (") + shown(item.internalName()) + QStringLiteral(")");
    }
    return withActor_ ? shown(item.actor()) + QStringLiteral("    ") + name : name;
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr int kAir = 5;
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kAir);
  }

 private:
  bool withActor_;
};

}  // namespace

void showDialNames(ListView& view, bool withActor) {
  view.setItemDelegate(new DialNames(withActor, &view));
}

}  // namespace norvik::desktop
