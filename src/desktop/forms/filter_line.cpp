#include "desktop/forms/filter_line.h"

#include "desktop/words.h"

#include <QKeyEvent>

namespace norvik::desktop {

FilterLine::FilterLine(Maker& maker, front::ListBox& list, ListView& view, QWidget* parent)
    : QLineEdit(parent), list_(list), view_(view) {
  setPlaceholderText(QStringLiteral("Filter"));
  setAccessibleName(QStringLiteral("Filter of the list below"));
  setClearButtonEnabled(true);
  connect(this, &QLineEdit::textChanged, this, [this] { apply(); });
  connect(view.model(), &QAbstractItemModel::modelReset, this, [this] { apply(); });
  connect(view.model(), &QAbstractItemModel::rowsInserted, this, [this] { apply(); });
  maker.watch({&list}, [this] {
    if (!text().isEmpty()) apply();
  });
}

void FilterLine::apply() {
  const int rows = std::min(list_.count(), view_.model()->rowCount());
  for (int row = 0; row < rows; ++row) {
    const bool fits =
        text().isEmpty() || shown(list_.item(row)).contains(text(), Qt::CaseInsensitive);
    if (view_.isRowHidden(row) == fits) view_.setRowHidden(row, !fits);
  }
}

void FilterLine::goToList() {
  for (int row = 0; row < view_.model()->rowCount(); ++row) {
    if (view_.isRowHidden(row)) continue;
    view_.setFocus();
    view_.setCurrentIndex(view_.model()->index(row, 0));
    return;
  }
}

void FilterLine::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter) return goToList();
  if (key == Qt::Key_Escape && !text().isEmpty()) return clear();
  QLineEdit::keyPressEvent(event);
}

}  // namespace norvik::desktop
