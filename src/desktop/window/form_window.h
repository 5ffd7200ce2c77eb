#pragma once
// Any other form in a window.

#include "desktop/maker.h"
#include "front/form.h"

#include <QDialog>

#include <cstdint>
#include <functional>
#include <string>

namespace norvik::desktop {

/// A window for a form. Its close box unloads the form; keys and clicks that no control wants are
/// the form's own.
class FormWindow : public QDialog {
 public:
  FormWindow(Maker& maker, front::Form& form, std::function<void()> unload, QWidget* parent);

  /// Lays the controls at their places, or one below the other where the form names no places.
  void placeAll();

  /// What is not a control's: the title.
  virtual void sync();
  virtual void setBusy(bool) {}
  /// A handler has come to its end.
  virtual void rest() {}
  virtual void setProgress(std::uint64_t, std::uint64_t) {}
  /// Says something until the next work begins or ends.
  virtual void say(const QString&) {}

 protected:
  Maker& maker() const { return maker_; }
  /// Gives the form a key; whether it wants any.
  bool deliverKey(const std::string& key);
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void placeControls();
  void stackControls();

  Maker& maker_;
  front::Form& form_;
  std::function<void()> unload_;
};

}  // namespace norvik::desktop
