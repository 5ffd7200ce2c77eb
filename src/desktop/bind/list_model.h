#pragma once
// A list box's strings, where they are.

#include "front/list_box.h"

#include <QAbstractListModel>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

namespace norvik::desktop {

/// Shows the items of a list box without a copy of them, or those of them that a filter lets
/// through: a row is then not an item's index. update() tells the view what changed.
class ListModel : public QAbstractListModel {
 public:
  explicit ListModel(front::ListBox& list)
      : list_(list), seen_(list.itemChanges()), count_(list.count()) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// Whether the items have changed since the last update.
  bool stale() const { return seen_ != list_.itemChanges(); }
  void update();
  void setTickable(bool tickable) { tickable_ = tickable; }

  /// Shows the items that hold a text, in whatever case, and what belongs to them: items that begin
  /// with a tab belong to the one above that does not. An empty text shows all.
  void setFilter(const QString& text);
  bool filtered() const { return !filter_.isEmpty(); }
  /// What a filter looks at beside an item's own text.
  void setFurtherText(std::function<QString(int item)> text) { further_ = std::move(text); }

  /// How many items there were at the last update, shown or not.
  int items() const { return count_; }
  /// The item's index at a row.
  int item(int row) const;
  /// The row of an item; -1 if the filter keeps it back.
  int rowOf(int item) const;

  const front::ListBox& list() const { return list_; }

 private:
  void findRows();
  bool takes(int item) const;

  front::ListBox& list_;
  std::uint64_t seen_;
  int count_;              ///< of the items when they were last looked at
  std::vector<int> rows_;  ///< the items' indexes, while there is a filter
  QString filter_;
  std::function<QString(int)> further_;
  bool tickable_ = false;
};

/// An item in the letters of the window: tabs as a small indent, no control characters.
QString shownItem(std::string_view item);

}  // namespace norvik::desktop
