#pragma once
// A row that goes on in a second one where the window is narrow.

#include <QLayout>

#include <memory>
#include <vector>

namespace norvik::desktop {

/// Lays its widgets side by side, each as large as it would be, and begins a new row with the one
/// that has no room any more.
class FlowLayout : public QLayout {
 public:
  explicit FlowLayout(QWidget* parent);
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override;
  int count() const override;
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return arrange({0, 0, width, 0}, false); }
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  void setGeometry(const QRect& place) override;

 private:
  /// The height that is needed; moves the items if it is to.
  int arrange(const QRect& place, bool move) const;

  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace norvik::desktop
