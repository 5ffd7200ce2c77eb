#pragma once
// Items of a list that have something to be said about them.

#include <QStyledItemDelegate>

#include <functional>

namespace norvik::desktop {

/// Draws the items of a list, some with a few words behind them, and tells more of an item as its
/// tool tip. Both texts are empty for an item of which there is nothing to say.
class MarkedItems : public QStyledItemDelegate {
 public:
  using TextOf = std::function<QString(const QModelIndex& index)>;

  /// Without `words` no item is marked.
  MarkedItems(TextOf words, TextOf reason, QObject* parent)
      : QStyledItemDelegate(parent), words_(std::move(words)), reason_(std::move(reason)) {}

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  TextOf words_;
  TextOf reason_;
};

}  // namespace norvik::desktop
