#pragma once
// A list box's strings, where they are.

#include "front/list_box.h"

#include <QAbstractListModel>

namespace norvik::desktop {

/// Shows the items of a list box without a copy of them. update() tells the view what changed.
class ListModel : public QAbstractListModel {
 public:
  explicit ListModel(front::ListBox& list)
      : list_(list), seen_(list.itemChanges()), rows_(list.count()) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// Whether the items have changed since the last update.
  bool stale() const { return seen_ != list_.itemChanges(); }
  void update();
  void setTickable(bool tickable) { tickable_ = tickable; }

  const front::ListBox& list() const { return list_; }

 private:
  front::ListBox& list_;
  std::uint64_t seen_;
  int rows_;
  bool tickable_ = false;
};

/// An item in the letters of the window: tabs as a small indent, no control characters.
QString shownItem(std::string_view item);

}  // namespace norvik::desktop
