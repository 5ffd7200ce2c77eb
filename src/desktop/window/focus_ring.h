#pragma once
// Where the keys go.

#include <QList>
#include <QPointer>
#include <QWidget>

namespace norvik::desktop {

/// A ring around the control that has the keys, in the windows of the forms: labels, tools and
/// lists show it as plainly as entries do.
class FocusRing : public QObject {
 public:
  FocusRing();
  ~FocusRing() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void follow(QWidget* now);
  void place();

  QPointer<QWidget> ring_;
  QPointer<QWidget> around_;
  QList<QPointer<QWidget>> watched_;  ///< the control and all that it lies in
};

}  // namespace norvik::desktop
