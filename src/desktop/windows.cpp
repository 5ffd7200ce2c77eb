#include "desktop/windows.h"

#include "desktop/forms/form_windows.h"
#include "desktop/window/place.h"

#include <utility>

namespace norvik::desktop {

Windows::Windows(Dispatcher& dispatcher, front::Session& session, DesktopFrontEnd& frontEnd,
                 const QPalette& system)
    : dispatcher_(dispatcher),
      session_(session),
      frontEnd_(frontEnd),
      maker_(dispatcher, bindings_) {
  main_ = std::make_unique<MainWindow>(maker_, session, frontEnd, system);
  dispatcher_.setSync([this] { sync(); });
  dispatcher_.setRest([this] { rest(); });
  frontEnd.setStage(*this);
}

Windows::~Windows() {
  dispatcher_.setSync({});
  dispatcher_.setRest({});
}

void Windows::sync() {
  for (front::Form* form : session_.forms()) {
    bindings_.sync(*form);
    followFocus(*form);
  }
  main_->sync();
  for (const auto& [form, window] : others_) window->sync();
}

void Windows::rest() {
  main_->rest();
  for (const auto& [form, window] : others_) window->rest();
  if (!frontEnd_.passStop().takeStopped()) return;
  const QString cancelled = QStringLiteral("Cancelled");
  main_->say(cancelled);
  for (const auto& [form, window] : others_) window->say(cancelled);
}

void Windows::setBusy(bool busy) {
  main_->setBusy(busy);
  for (const auto& [form, window] : others_) window->setBusy(busy);
}

/// Gives the keys to the control that a tool has chosen since the last time.
void Windows::followFocus(front::Form& form) {
  front::Control* wanted = form.focus();
  if (std::exchange(focus_[&form], wanted) == wanted || wanted == nullptr) return;
  const auto other = others_.find(&form);
  QWidget* window = other == others_.end() ? static_cast<QWidget*>(main_.get())
                                           : static_cast<QWidget*>(other->second.get());
  auto* widget = window->findChild<QWidget*>(QString::fromStdString(wanted->name()));
  if (widget != nullptr && widget->isVisible() && !widget->hasFocus()) widget->setFocus();
}

std::unique_ptr<FormWindow> Windows::makeWindow(front::Form& form) {
  const auto unload = [this, &form] {
    if (form.loaded()) dispatcher_.run(form.name(), [&] { session_.unload(form); });
  };
  return makeFormWindow(form, {maker_, session_, frontEnd_, unload, main_.get()});
}

FormWindow& Windows::windowOf(front::Form& form) {
  if (const auto known = others_.find(&form); known != others_.end()) return *known->second;
  // A window may read a file while it is made, and those that stand tell of it.
  std::unique_ptr<FormWindow> window = makeWindow(form);
  return *others_.emplace(&form, std::move(window)).first->second;
}

void Windows::show(front::Form& form, bool modal) {
  if (&form == &session_.opening) {
    main_->restorePlace();
    main_->show();
    keepOnScreen(*main_);
    return;
  }
  FormWindow& window = windowOf(form);
  window.setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
  bindings_.updateAll(form);
  window.show();
  keepOnScreen(window);
  window.raise();
  window.activateWindow();
}

void Windows::close(front::Form& form) {
  if (&form == &session_.opening) {
    main_->hide();
  } else if (const auto found = others_.find(&form); found != others_.end()) {
    found->second->hide();
  }
}

void Windows::breathe(std::uint64_t position, std::uint64_t size) {
  main_->setProgress(position, size);
  for (const auto& [form, window] : others_) window->setProgress(position, size);
  frontEnd_.passStop().processEvents();
}

}  // namespace norvik::desktop
