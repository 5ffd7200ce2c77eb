#pragma once
// The box that narrows a long list.

#include "desktop/bind/list_view.h"
#include "front/list_box.h"

#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;

namespace norvik::desktop {

/// A line above a list: what is typed there is what the shown items hold. The list itself, its
/// indexes and what is selected stay as they are; the line says how much of them is not shown.
/// Escape shows all again and goes back to the list, Enter and Down go to the list.
class ListFilter : public QWidget {
 public:
  ListFilter(front::ListBox& list, ListView& view, QWidget& parent);

  /// A view that narrows itself.
  struct Narrowed {
    QWidget& view;
    QString name;                                ///< of what it lists, as in "Filter.ListGroups"
    std::function<void(const QString&)> narrow;  ///< shows what holds a text
    std::function<QString()> told;               ///< how much that is; empty while all is shown
  };
  /// One that is there whenever its view is.
  ListFilter(Narrowed narrowed, QWidget& parent);

  /// Shows the line and takes the keys.
  void open();
  /// Shows the line for good: Escape empties it, and what comes after that is the window's.
  void stay();
  /// Shows all items again and goes back to the list.
  void dismiss();
  /// Says anew how much is shown.
  void count();

  const front::ListBox* list() const { return list_; }
  const QWidget& view() const { return narrowed_.view; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void followView(const QEvent& event);

  front::ListBox* list_ = nullptr;
  Narrowed narrowed_;
  bool stays_;
  QLineEdit* edit_;
  QLabel* count_;
};

/// How much of a list its filter lets through, and how much of what is selected it keeps back; an
/// empty text without a filter.
QString toldOf(const front::ListBox& list, const ListView& view);

/// Opens the filter in whose part of the window the keys are, else that of a list; none whose list
/// is not on view. Without a list it is the first one on view.
void openFilter(QWidget& window, const front::ListBox* otherwise = nullptr);

}  // namespace norvik::desktop
