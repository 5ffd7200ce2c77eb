#pragma once
// The mesh workshop in a window.

#include "desktop/desktop_front_end.h"
#include "desktop/window/form_window.h"
#include "front/form_obj.h"
#include "front/session.h"

class QAbstractButton;
class QLabel;
class QProgressBar;

namespace norvik::desktop {

class ViewStack;

/// Tools above, views at the left, options and lists at the right, what goes on below.
class MeshWindow : public FormWindow {
 public:
  MeshWindow(Maker& maker, front::Session& session, front::FormOBJ& form, DesktopFrontEnd& frontEnd,
             std::function<void()> unload, QWidget* parent);

  void setBusy(bool busy) override;
  void rest() override;
  void setProgress(std::uint64_t position, std::uint64_t size) override;
  void say(const QString& text) override;

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool uncover(const QKeyEvent& event);
  bool unmark(const QKeyEvent& event);
  QWidget* makeSide(front::Session& session, front::FormOBJ& form);
  QWidget* makeStatus(front::Session& session, front::FormOBJ& form);
  void bindTheRest(front::FormOBJ& form, QWidget& side);
  void keepTheKeys();

  front::FormOBJ& mesh_;
  ViewStack* views_ = nullptr;
  QLabel* state_ = nullptr;
  QProgressBar* progress_ = nullptr;
  PassStop& passStop_;
  QAbstractButton* cancel_ = nullptr;
  bool placed_ = false;
};

}  // namespace norvik::desktop
