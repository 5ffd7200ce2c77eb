#pragma once
// A picture that covers the work.

#include <QIcon>
#include <QWidget>

namespace norvik::desktop {

/// Lies over all of its parent, on paper of its own.
class CoverPicture : public QWidget {
 public:
  CoverPicture(const QString& picture, QWidget& parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QIcon picture_;
};

}  // namespace norvik::desktop
