#pragma once
// Items of a list that have something to be said about them.

#include <QStyledItemDelegate>

#include <functional>

namespace norvik::desktop {

/// A few words behind an item, and the reason in full as its tool tip. Both empty for an item that
/// is as it should be.
struct Mark {
  QString words;
  QString reason;
};

/// Draws the items of a list with their marks.
class MarkedItems : public QStyledItemDelegate {
 public:
  using MarkOf = std::function<Mark(int row)>;

  MarkedItems(MarkOf markOf, QObject* parent)
      : QStyledItemDelegate(parent), markOf_(std::move(markOf)) {}

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  MarkOf markOf_;
};

}  // namespace norvik::desktop
