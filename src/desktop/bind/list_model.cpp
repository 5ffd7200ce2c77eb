#include "desktop/bind/list_model.h"

#include "desktop/words.h"

namespace norvik::desktop {

int ListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return shownItem(list_.item(index.row()));
    case Qt::ToolTipRole: {
      // A long item may be cut short at the list's edge.
      constexpr std::size_t kLong = 28;
      const auto item = list_.item(index.row());
      return item.size() > kLong && list_.tip().empty() ? shownItem(item).trimmed() : QVariant{};
    }
    case Qt::CheckStateRole:
      if (!tickable_) return {};
      return list_.ticked(index.row()) ? Qt::Checked : Qt::Unchecked;
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
  rows_ = list_.count();
  seen_ = list_.itemChanges();
  endResetModel();
}

QString shownItem(std::string_view item) {
  QString text = shown(item);
  return text.replace(QLatin1Char('\t'), QStringLiteral("    "));
}

}  // namespace norvik::desktop
