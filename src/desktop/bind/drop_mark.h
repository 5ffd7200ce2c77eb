#pragma once
// Where something that is dragged may be dropped.

#include <QPointer>
#include <QWidget>

#include <vector>

namespace norvik::desktop {

/// Marks a widget as one that takes controls of the program.
void markAsTarget(QWidget& widget);

/// Outlines all widgets on view that take controls, for as long as it lives; the one under the
/// mouse stands out.
class DropMarks {
 public:
  DropMarks();
  DropMarks(const DropMarks&) = delete;
  DropMarks& operator=(const DropMarks&) = delete;
  ~DropMarks();

 private:
  std::vector<QPointer<QWidget>> outlines_;
};

}  // namespace norvik::desktop
