#include "desktop/window/form_window.h"

#include "desktop/bind/menu_key.h"
#include "desktop/bind/widget_binding.h"
#include "desktop/words.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace norvik::desktop {

FormWindow::FormWindow(Maker& maker, front::Form& form, std::function<void()> unload,
                       QWidget* parent)
    : QDialog(parent), maker_(maker), form_(form), unload_(std::move(unload)) {
  setObjectName(QString::fromStdString(form.name()));
  sync();
}

void FormWindow::sync() {
  const QString title = shown(form_.caption());
  if (windowTitle() != title) setWindowTitle(title);
}

void FormWindow::placeAll() {
  const auto& controls = form_.controls();
  const bool placed = std::any_of(controls.begin(), controls.end(),
                                  [](const auto* control) { return control->box().width > 0; });
  if (placed) {
    placeControls();
  } else {
    stackControls();
  }
  for (front::Control* control : controls) {
    if (auto* timer = dynamic_cast<front::Timer*>(control); timer != nullptr) maker_.timer(*timer);
  }
}

void FormWindow::placeControls() {
  constexpr float kTwipsPerPixel = 15;
  for (front::Control* control : form_.controls()) {
    QWidget* widget = maker_.make(*control, *this);
    if (widget == nullptr) continue;
    const front::Box& box = control->box();
    widget->setGeometry(static_cast<int>(box.left), static_cast<int>(box.top),
                        static_cast<int>(box.width), static_cast<int>(box.height));
  }
  const front::Box& box = form_.box();
  resize(static_cast<int>(box.width / kTwipsPerPixel),
         static_cast<int>(box.height / kTwipsPerPixel));
}

void FormWindow::stackControls() {
  auto* column = new QVBoxLayout(this);
  for (front::Control* control : form_.controls()) {
    QWidget* widget = maker_.make(*control, *this);
    if (widget != nullptr) column->addWidget(widget);
  }
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  QTimer::singleShot(0, this, [this] { unload_(); });
}

bool FormWindow::deliverKey(const std::string& key) {
  if (key.empty() || !form_.key.hasHandlers()) return false;
  maker_.dispatcher().raise(form_.key, key);
  return true;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (isMenuKey(*event) && form_.released.hasHandlers()) {
    const QPoint middle = rect().center();
    maker_.dispatcher().raise(form_.released,
                              front::Mouse{front::MouseButton::right, middle.x(), middle.y()});
    return;
  }
  const std::string name = keyName(*event);
  if (!deliverKey(name) && name == "Escape") close();
}

/// A control that has something to do with the mouse keeps its clicks to itself.
void FormWindow::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  const QWidget* widget = childAt(place);
  while (widget != nullptr && widget != this) {
    const front::Control* control = form_.find(widget->objectName().toStdString());
    if (control != nullptr && (control->pressed.hasHandlers() || control->released.hasHandlers() ||
                               control->clicked.hasHandlers())) {
      return;
    }
    widget = widget->parentWidget();
  }
  const bool right = event->button() == Qt::RightButton;
  if (!form_.released.hasHandlers() || (!right && event->button() != Qt::LeftButton)) return;
  maker_.dispatcher().raise(
      form_.released, front::Mouse{right ? front::MouseButton::right : front::MouseButton::left,
                                   place.x(), place.y()});
}

}  // namespace norvik::desktop
