#pragma once
// A hand that waits for a dialog.

#include <QApplication>
#include <QTimer>

#include <functional>

namespace norvik::desktop {

/// Does something with the dialog of this kind as soon as it is up.
template <typename Dialog>
void whenUp(const std::function<void(Dialog&)>& act) {
  constexpr int kAgain = 10;  // milliseconds
  auto* timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    timer->deleteLater();
    timer->stop();
    act(*dialog);
  });
  timer->start(kAgain);
}

}  // namespace norvik::desktop
