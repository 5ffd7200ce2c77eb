#pragma once
// A tool's small controls, below its picture.

#include <QWidget>

class QHBoxLayout;

namespace norvik::desktop {

/// A row that begins below the picture of its tool, or as far to the right as there is room for
/// what it holds.
class ToolRow : public QWidget {
 public:
  /// The picture is found by its name in the parent's window.
  ToolRow(QString picture, QWidget& parent);

  QHBoxLayout& line() { return *line_; }

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void place();

  QString picture_;
  QHBoxLayout* line_;
};

}  // namespace norvik::desktop
