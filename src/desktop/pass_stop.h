#pragma once
// The operator's way out of a long pass.

#include <QObject>
#include <QPointer>

#include <vector>

class QAbstractButton;
class QWidget;

namespace norvik::desktop {

/// While a pass runs that may be ended, and a button says so, the button and Escape end it. All
/// else that the operator does then is dropped, for nobody could answer it.
class PassStop : public QObject {
 public:
  /// A button that ends the pass; the window shows it beside the progress, the end of the pass
  /// hides it.
  QAbstractButton& addButton(QWidget& parent);

  void begin();
  void end();
  bool running() const { return running_ > 0; }

  /// Ends the pass that runs, at its next check.
  void request();
  /// Throws front::ToolStopped once the operator has said so. What an event reads meanwhile is
  /// no read of the pass.
  void check();
  /// Whether a pass was ended since this was asked last.
  bool takeStopped();

  /// Lets the window live; of what the operator does only the end of the pass gets through. It
  /// waits in the queue while no button is on show.
  void processEvents();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isForButton(const QObject& watched, const QEvent& event) const;
  bool listens() const;

  std::vector<QPointer<QAbstractButton>> buttons_;
  int running_ = 0;
  bool requested_ = false;
  bool letsLive_ = false;  ///< events are let through just now
  bool stopped_ = false;
};

}  // namespace norvik::desktop
