#include "desktop/forms/pose_parts.h"

#include "desktop/bind/label_button.h"
#include "desktop/bind/list_model.h"
#include "desktop/theme.h"
#include "desktop/window/headings.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

constexpr int kAir = 5;
constexpr int kChip = 14;
constexpr int kGap = 6;
constexpr int kHeadingAir = 10;

/// The index of a row's item, which a filter makes another.
int itemAt(const QModelIndex& index) {
  const auto* items = dynamic_cast<const ListModel*>(index.model());
  return items == nullptr ? index.row() : items->item(index.row());
}

int headingHeight(const QStyleOptionViewItem& option) {
  return option.fontMetrics.height() + kHeadingAir;
}

}  // namespace

NotedRows::NotedRows(RowNotes notes, QObject* parent)
    : QStyledItemDelegate(parent), notes_(std::move(notes)) {}

QSize NotedRows::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const int heading = headingOver(index).isEmpty() ? 0 : headingHeight(option);
  return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kAir + heading);
}

/// Empty over a row whose heading is that of the row before.
QString NotedRows::headingOver(const QModelIndex& index) const {
  if (!notes_.heading) return {};
  const QString heading = notes_.heading(itemAt(index));
  const QModelIndex before = index.siblingAtRow(index.row() - 1);
  return before.isValid() && notes_.heading(itemAt(before)) == heading ? QString() : heading;
}

/// Leaves the rest of the row's room to its item.
void NotedRows::paintHeading(QPainter& painter, QStyleOptionViewItem& row,
                             const QString& heading) const {
  QRect room = row.rect.adjusted(kGap, 0, -kGap, 0);
  room.setHeight(headingHeight(row));
  row.rect.setTop(room.bottom() + 1);
  QFont font = row.font;
  font.setBold(true);
  painter.save();
  painter.setFont(font);
  painter.setPen(row.palette.color(QPalette::Text));
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                   QFontMetrics(font).elidedText(heading, Qt::ElideMiddle, room.width()));
  painter.setPen(row.palette.color(QPalette::Mid));
  painter.drawLine(room.left(), room.bottom(), room.right(), room.bottom());
  painter.restore();
}

void NotedRows::paint(QPainter* painter, const QStyleOptionViewItem& option,
                      const QModelIndex& index) const {
  QStyleOptionViewItem row(option);
  initStyleOption(&row, index);
  const int number = itemAt(index);
  const QString heading = headingOver(index);
  if (!heading.isEmpty()) paintHeading(*painter, row, heading);
  const QString item = std::exchange(row.text, QString());
  const QStyle* style = row.widget != nullptr ? row.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

  QRect room = row.rect.adjusted(kGap, 0, -kGap, 0);
  painter->save();
  const bool selected = row.state.testFlag(QStyle::State_Selected);
  const QPalette::ColorRole ink = selected ? QPalette::HighlightedText : QPalette::Text;
  if (notes_.chip) {
    const QRect chip(room.left(), room.center().y() - kChip / 2, kChip, kChip);
    const QColor colour = notes_.chip(number);
    painter->setPen(row.palette.color(QPalette::Mid));
    painter->setBrush(colour.isValid() ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter->drawRect(chip);
    room.setLeft(chip.right() + kGap);
  }
  if (notes_.note) {
    const QString note = notes_.note(number);
    const int width = row.fontMetrics.horizontalAdvance(note);
    const bool marked = notes_.marked && notes_.marked(number);
    QColor colour = row.palette.color(ink);
    if (marked && !selected) colour = accentOf(row.palette);
    QFont font = row.font;
    font.setBold(marked);
    painter->setFont(font);
    painter->setPen(colour);
    painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter, note);
    room.setRight(room.right() - width - 2 * kGap);
  }
  painter->setFont(row.font);
  painter->setPen(row.palette.color(ink));
  painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                    row.fontMetrics.elidedText(item.trimmed(), Qt::ElideMiddle, room.width()));
  painter->restore();
}

QWidget* makeMirror(Maker& maker, front::ListBox& list, const QString& name, QWidget& parent) {
  auto* view = new ListView(&parent);
  auto* model = new ListModel(list);
  model->setParent(view);
  view->setModel(model);
  view->setSelectionMode(QAbstractItemView::NoSelection);
  view->setFocusPolicy(Qt::NoFocus);
  view->setAccessibleName(name);
  maker.watch({&list}, [model] { model->update(); });
  return view;
}

QWidget* makeDoneRow(Maker& maker, front::Label& done, front::Label& cancel, QWidget& parent) {
  auto* box = new QDialogButtonBox(&parent);
  QPushButton& doneButton = makeLabelButton(maker, done, *box);
  doneButton.setDefault(true);
  box->addButton(&doneButton, QDialogButtonBox::AcceptRole);
  box->addButton(&makeLabelButton(maker, cancel, *box), QDialogButtonBox::RejectRole);
  return box;
}

QLayout* makeColumn(const QString& heading, QWidget* widget) {
  auto* column = new QVBoxLayout;
  column->setSpacing(4);
  auto* label = new QLabel(heading, widget->parentWidget());
  makeHeading(*label);
  label->setBuddy(widget);
  widget->setAccessibleName(heading);
  column->addWidget(label);
  column->addWidget(widget, 1);
  return column;
}

}  // namespace norvik::desktop
