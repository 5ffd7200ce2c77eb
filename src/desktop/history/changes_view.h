#pragma once
// The view of the lines in which two files differ.

#include "desktop/history/change_rows.h"

#include <QAbstractScrollArea>

#include <memory>

namespace norvik::desktop {

/// Draws the rows that are in sight, and asks for no others. The keys are those of any list.
class ChangesView : public QAbstractScrollArea {
 public:
  ChangesView(std::unique_ptr<ChangeRows> rows, QWidget* parent);

  const ChangeRows& rows() const { return *rows_; }
  /// Goes to the change behind the topmost row, or in front of it.
  void goToNext();
  void goToPrevious();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  int rowHeight() const;
  void fitScrollBars();
  void goTo(std::uint64_t row);
  QColor inkOf(ChangeRows::Kind kind) const;

  std::unique_ptr<ChangeRows> rows_;
  int widest_ = 0;  ///< of the rows drawn so far, in pixels
};

}  // namespace norvik::desktop
