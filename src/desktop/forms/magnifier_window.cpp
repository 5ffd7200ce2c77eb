#include "desktop/forms/magnifier_window.h"

#include "desktop/bind/choice_bindings.h"
#include "desktop/screen_glass.h"
#include "desktop/theme.h"
#include "desktop/window/headings.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <QWindow>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 340;
constexpr int kHeight = 320;
constexpr int kWell = 28;

/// A cross over the middle of the image, black and white so that it is seen on anything.
class Cross : public QWidget {
 public:
  explicit Cross(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    constexpr int kArm = 10;
    const QPoint middle = rect().center();
    QPainter painter(this);
    for (const auto& [colour, width] : {std::pair{Qt::white, 3}, std::pair{Qt::black, 1}}) {
      painter.setPen(QPen(colour, width));
      painter.drawLine(middle - QPoint(kArm, 0), middle + QPoint(kArm, 0));
      painter.drawLine(middle - QPoint(0, kArm), middle + QPoint(0, kArm));
    }
  }
};

/// What stands on the image where there will be none.
QLabel* makeRefusal(QWidget& image) {
  auto* text = new QLabel(
      QStringLiteral("This system does not let a program look at the screen. The magnifier works "
                     "where the desktop runs on X11."),
      &image);
  text->setObjectName(QStringLiteral("Refusal"));
  text->setWordWrap(true);
  text->setAlignment(Qt::AlignCenter);
  text->setMargin(kPaneMargin);
  text->setAttribute(Qt::WA_TransparentForMouseEvents);
  QPalette onPaper = text->palette();
  onPaper.setColor(QPalette::WindowText, Qt::black);
  text->setPalette(onPaper);
  return text;
}

}  // namespace

MagnifierWindow::MagnifierWindow(const WindowParts& parts, tools::Magnifier& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent), form_(form) {
  setWindowFlag(Qt::WindowStaysOnTopHint);
  auto* grid = new QGridLayout(this);
  grid->setSpacing(kPaneMargin / 2);
  grid->setRowStretch(0, 1);
  grid->setColumnStretch(0, 1);
  image_ = &maker().surface(form.Picture1, *this);
  image_->setAccessibleName(QStringLiteral("The screen around the pointer"));
  image_->setToolTip(QStringLiteral("Ctrl+C or a right press: copy the picture"));
  connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this, [this] {
    maker().dispatcher().raise(form_.Picture1.pressed, front::Mouse{front::MouseButton::right});
  });
  image_->installEventFilter(this);
  auto* over = new QGridLayout(image_);
  over->setContentsMargins(0, 0, 0, 0);
  auto* cross = new Cross(image_);
  over->addWidget(cross, 0, 0);
  if (!mayLookAtScreen()) over->addWidget(makeRefusal(*image_), 0, 0);
  grid->addWidget(image_, 0, 0);
  auto* zoom = new QScrollBar(Qt::Vertical, this);
  zoom->setAccessibleName(QStringLiteral("Zoom"));
  zoom->setToolTip(QStringLiteral("Zoom: Ctrl+F1 as it is, to Ctrl+F5 a hundredfold"));
  maker().bindings().add(
      std::make_unique<SliderBinding>(maker().dispatcher(), form.VScroll1, *zoom));
  grid->addWidget(zoom, 0, 1);
  grid->addLayout(makeStrip(), 1, 0, 1, 2);
  maker().timer(form.Timer1);
  maker().watch({&form.Shape1},
                [this, cross] { cross->setVisible(form_.Shape1.visible() && mayLookAtScreen()); });
  maker().watch({&form.Shape2}, [this] { showColour(); });
  resize(kWidth, kHeight);
}

QLayout* MagnifierWindow::makeStrip() {
  auto* strip = new QHBoxLayout;
  strip->addWidget(&maker().label(form_.Label1, *this));
  strip->addWidget(&maker().label(form_.Label2, *this));
  strip->addStretch();
  colour_ = new QLabel(this);
  colour_->setObjectName(QStringLiteral("ColourText"));
  strip->addWidget(colour_);
  well_ = new QFrame(this);
  well_->setObjectName(QString::fromStdString(form_.Shape2.name()));
  well_->setFrameStyle(QFrame::Box);
  well_->setFixedSize(kWell, kWell / 2);
  well_->setAutoFillBackground(true);
  strip->addWidget(well_);
  return strip;
}

void MagnifierWindow::showColour() {
  const QColor colour = toColor(form_.Shape2.back());
  QPalette painted = well_->palette();
  painted.setColor(QPalette::Window, colour);
  well_->setPalette(painted);
  colour_->setText(
      QStringLiteral("%1, %2, %3").arg(colour.red()).arg(colour.green()).arg(colour.blue()));
}

/// Gives the image as many pixels as it has room for.
void MagnifierWindow::fitImage() {
  const QSize room = image_->size();
  const graphics::Surface& surface = form_.Picture1.surface();
  const bool fits = room.width() == surface.width() && room.height() == surface.height();
  if (fits || !form_.loaded()) return;
  maker().dispatcher().run(form_.name(), [&] { form_.fit(room.width(), room.height()); });
}

bool MagnifierWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == image_ && (event->type() == QEvent::Resize || event->type() == QEvent::Show)) {
    // Behind the layout's own work, and behind a handler that may be running.
    QTimer::singleShot(0, this, [this] { fitImage(); });
  }
  return FormWindow::eventFilter(watched, event);
}

void MagnifierWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    FormWindow::keyPressEvent(event);
  }
}

void MagnifierWindow::mousePressEvent(QMouseEvent* event) {
  FormWindow::mousePressEvent(event);
  if (event->button() == Qt::LeftButton && windowHandle() != nullptr) {
    windowHandle()->startSystemMove();
  }
}

}  // namespace norvik::desktop
