#include "desktop/forms/viewer_window.h"

#include "desktop/images.h"
#include "desktop/window/headings.h"
#include "desktop/words.h"
#include "text/disk.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>
#include <utility>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 900;
constexpr int kHeight = 700;

}  // namespace

ViewerWindow::ViewerWindow(const WindowParts& parts, tools::FormViewer& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent),
      session_(parts.session),
      form_(form),
      map_(new MapView(this)) {
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  resize(kWidth, kHeight);
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  map_->setObjectName(QStringLiteral("Map"));
  column->addWidget(map_, 1);
  column->addLayout(makeTools());
  map_->setZoomed([this] { showState(); });
  map_->setFocus();
  maker().watch({&form.picChild}, [this] { showPicture(); });
}

QPushButton* ViewerWindow::addButton(QLayout& row, const QString& text, const QString& tip,
                                     std::function<void()> act) {
  auto* button = new QPushButton(text, this);
  button->setAutoDefault(false);
  button->setToolTip(tip);
  connect(button, &QPushButton::clicked, this, std::move(act));
  row.addWidget(button);
  return button;
}

QLayout* ViewerWindow::makeTools() {
  auto* row = new QHBoxLayout;
  state_ = new QLabel(this);
  state_->setObjectName(QStringLiteral("State"));
  row->addWidget(state_, 1);
  addButton(*row, QStringLiteral("Fit"), QStringLiteral("Show the whole map (0)"),
            [this] { map_->fit(); });
  addButton(*row, QStringLiteral("100 %"), QStringLiteral("A pixel of the map a pixel (1)"),
            [this] { map_->setZoom(1); });
  constexpr int kButton = 36;
  QPushButton* in = addButton(*row, QStringLiteral("+"), QStringLiteral("Nearer (+, or the wheel)"),
                              [this] { map_->zoomBy(1); });
  in->setAccessibleName(QStringLiteral("Nearer"));
  in->setMaximumWidth(kButton);
  QPushButton* out =
      addButton(*row, QStringLiteral("\u2212"), QStringLiteral("Farther away (-, or the wheel)"),
                [this] { map_->zoomBy(-1); });
  out->setAccessibleName(QStringLiteral("Farther away"));
  out->setMaximumWidth(kButton);
  addButton(*row, QStringLiteral("Close"), {}, [this] { close(); });
  return row;
}

void ViewerWindow::showPicture() {
  if (std::exchange(shown_, form_.shownPictures) == form_.shownPictures) return;
  const graphics::Surface& surface = form_.picChild.surface();
  map_->setPicture(surface.width() > 0 ? imageOn(surface) : QImage{});
  showState();
  if (!isVisible()) return;
  // A click in the main window has brought another map.
  raise();
  activateWindow();
}

void ViewerWindow::showState() {
  if (state_ == nullptr) return;
  const QString name = shown(text::fileTitle(session_.opening.CommonDialog6.fileName()));
  if (map_->empty()) {
    state_->setText(QStringLiteral("No map"));
    return;
  }
  constexpr double kWhole = 100;
  state_->setText(QStringLiteral("%1   %2 × %3 pixels   %4 %")
                      .arg(name)
                      .arg(form_.picChild.surface().width())
                      .arg(form_.picChild.surface().height())
                      .arg(std::lround(map_->zoom() * kWhole)));
}

}  // namespace norvik::desktop
