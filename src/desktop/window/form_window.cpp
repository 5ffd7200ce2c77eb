#include "desktop/window/form_window.h"

#include "desktop/words.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace norvik::desktop {

FormWindow::FormWindow(Maker& maker, front::Form& form, std::function<void()> unload,
                       QWidget* parent)
    : QDialog(parent), maker_(maker), form_(form), unload_(std::move(unload)) {
  setObjectName(QString::fromStdString(form.name()));
  setWindowTitle(shown(form.caption()));
  const auto& controls = form.controls();
  const bool placed = std::any_of(controls.begin(), controls.end(),
                                  [](const auto* control) { return control->box().width > 0; });
  if (placed) {
    placeControls(maker);
  } else {
    stackControls(maker);
  }
  for (front::Control* control : controls) {
    if (auto* timer = dynamic_cast<front::Timer*>(control); timer != nullptr) maker.timer(*timer);
  }
}

void FormWindow::placeControls(Maker& maker) {
  constexpr float kTwipsPerPixel = 15;
  for (front::Control* control : form_.controls()) {
    QWidget* widget = maker.make(*control, *this);
    if (widget == nullptr) continue;
    const front::Box& box = control->box();
    widget->setGeometry(static_cast<int>(box.left), static_cast<int>(box.top),
                        static_cast<int>(box.width), static_cast<int>(box.height));
  }
  const front::Box& box = form_.box();
  resize(static_cast<int>(box.width / kTwipsPerPixel),
         static_cast<int>(box.height / kTwipsPerPixel));
}

void FormWindow::stackControls(Maker& maker) {
  auto* column = new QVBoxLayout(this);
  for (front::Control* control : form_.controls()) {
    QWidget* widget = maker.make(*control, *this);
    if (widget != nullptr) column->addWidget(widget);
  }
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  QTimer::singleShot(0, this, [this] { unload_(); });
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  const std::string name = keyName(*event);
  if (!name.empty() && form_.key.hasHandlers()) {
    maker_.dispatcher().raise(form_.key, name);
  } else if (name == "Escape") {
    close();
  }
}

}  // namespace norvik::desktop
