#include "desktop/bind/list_model.h"

#include "desktop/words.h"

#include <algorithm>

namespace norvik::desktop {

int ListModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return filtered() ? static_cast<int>(rows_.size()) : count_;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const int shownIndex = item(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return shownItem(list_.item(shownIndex));
    case Qt::ToolTipRole: {
      // A long item may be cut short at the list's edge.
      constexpr std::size_t kLong = 28;
      const auto text = list_.item(shownIndex);
      return text.size() > kLong && list_.tip().empty() ? shownItem(text).trimmed() : QVariant{};
    }
    case Qt::CheckStateRole:
      if (!tickable_) return {};
      return list_.ticked(shownIndex) ? Qt::Checked : Qt::Unchecked;
    default:
      return {};
  }
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (tickable_) flags |= Qt::ItemIsUserCheckable;
  return index.isValid() ? flags : Qt::NoItemFlags;
}

void ListModel::update() {
  if (!stale()) return;
  beginResetModel();
  count_ = list_.count();
  seen_ = list_.itemChanges();
  findRows();
  endResetModel();
}

void ListModel::setFilter(const QString& text) {
  if (text == filter_) return;
  beginResetModel();
  filter_ = text;
  findRows();
  endResetModel();
}

void ListModel::findRows() {
  rows_.clear();
  if (!filtered()) return;
  for (int first = 0; first < count_;) {
    int behind = first + 1;
    while (behind < count_ && list_.item(behind).starts_with('\t')) ++behind;
    bool wanted = false;
    for (int i = first; i < behind && !wanted; ++i) {
      wanted = takes(i);
    }
    for (int i = first; i < behind && wanted; ++i) rows_.push_back(i);
    first = behind;
  }
}

bool ListModel::takes(int item) const {
  if (shown(list_.item(item)).contains(filter_, Qt::CaseInsensitive)) return true;
  return further_ && further_(item).contains(filter_, Qt::CaseInsensitive);
}

int ListModel::item(int row) const {
  if (!filtered()) return row;
  const bool there = row >= 0 && row < static_cast<int>(rows_.size());
  return there ? rows_[static_cast<std::size_t>(row)] : front::ListBox::kNone;
}

int ListModel::rowOf(int item) const {
  if (!filtered()) return item;
  const auto found = std::lower_bound(rows_.begin(), rows_.end(), item);
  return found != rows_.end() && *found == item ? static_cast<int>(found - rows_.begin()) : -1;
}

QString shownItem(std::string_view item) {
  QString text = shown(item);
  return text.replace(QLatin1Char('\t'), QStringLiteral("    "));
}

}  // namespace norvik::desktop
