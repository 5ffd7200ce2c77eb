#pragma once
// Pieces of the windows of the pose tools.

#include "desktop/maker.h"

#include <QColor>
#include <QDialogButtonBox>
#include <QLayout>
#include <QStyledItemDelegate>

#include <functional>

class QPushButton;

namespace norvik::desktop {

/// What stands in the row of a list beside its item: a heading over it, a chip of a colour in
/// front, a text behind.
struct RowNotes {
  std::function<QColor(int item)> chip;      ///< an invalid colour for none
  std::function<QString(int item)> note;     ///< empty for none
  std::function<bool(int item)> marked;      ///< whether the note stands out
  std::function<QString(int item)> heading;  ///< over the first row of those that share it
};

/// Draws a list's rows with their notes. With headings the rows are not of one height.
class NotedRows : public QStyledItemDelegate {
 public:
  NotedRows(RowNotes notes, QObject* parent);

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  QString headingOver(const QModelIndex& index) const;
  void paintHeading(QPainter& painter, QStyleOptionViewItem& row, const QString& heading) const;

  RowNotes notes_;
};

/// Shows the items of a list that no one can reach, for reading.
QWidget* makeMirror(Maker& maker, front::ListBox& list, const QString& name, QWidget& parent);

/// The row of buttons at the foot of a window, the first one its default.
QWidget* makeDoneRow(Maker& maker, front::Label& done, front::Label& cancel, QWidget& parent);

/// A column with a heading over a widget, which may grow.
QLayout* makeColumn(const QString& heading, QWidget* widget);

}  // namespace norvik::desktop
