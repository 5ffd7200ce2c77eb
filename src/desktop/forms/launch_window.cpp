#include "desktop/forms/launch_window.h"

#include "desktop/window/headings.h"
#include "desktop/words.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 240;
constexpr int kHeight = 220;

}  // namespace

LaunchWindow::LaunchWindow(const WindowParts& parts, tools::FormLaunch& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent),
      session_(parts.session),
      frontEnd_(parts.frontEnd),
      form_(form) {
  setWindowFlag(Qt::WindowStaysOnTopHint);
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  SurfaceView& target = maker().surface(form.Picture1, *this);
  target.setAccessibleName(QStringLiteral("Drop a file here to open it"));
  column->addWidget(&target, 1);
  note_ = new QLabel(&target);
  note_->setObjectName(QStringLiteral("Note"));
  note_->setAlignment(Qt::AlignCenter);
  note_->setWordWrap(true);
  note_->setAttribute(Qt::WA_TransparentForMouseEvents);
  // It stands on the picture, which is white in any theme.
  QPalette onPaper = note_->palette();
  onPaper.setColor(QPalette::WindowText, Qt::black);
  note_->setPalette(onPaper);
  auto* over = new QVBoxLayout(&target);
  over->addWidget(note_, 0, Qt::AlignCenter);
  auto* choose = new QPushButton(QStringLiteral("&Choose ..."), this);
  choose->setObjectName(QStringLiteral("ChooseFile"));
  choose->setToolTip(QStringLiteral("Choose a file instead of dropping it"));
  connect(choose, &QPushButton::clicked, this, [this] { chooseFile(); });
  column->addWidget(choose);
  auto* pictures = qobject_cast<QCheckBox*>(maker().make(form.Check1, *this));
  pictures->setToolTip(QStringLiteral("Show dropped pictures here and open nothing"));
  column->addWidget(pictures);
  maker().watch({&form.Picture1, &form.Check1}, [this] { showNote(); });
  resize(kWidth, kHeight);
}

/// What a drop does, for a file that is chosen.
void LaunchWindow::chooseFile() {
  const std::string name = form_.name() + ".ChooseFile";
  maker().dispatcher().run(name, [&] {
    const auto file =
        frontEnd_.fileDialog({.name = name,
                              .title = form_.Check1.value() ? "Choose a picture" : "Choose a file",
                              .folder = session_.disk.currentFolder()});
    if (file) form_.Picture1.filesDropped.raise({*file});
  });
}

void LaunchWindow::showNote() {
  if (!form_.printed.empty()) {
    note_->setText(shown(form_.printed));
  } else if (form_.holdsPicture()) {
    note_->clear();
  } else {
    note_->setText(form_.Check1.value() ? QStringLiteral("Drop a picture here")
                                        : QStringLiteral("Drop a file here"));
  }
}

void LaunchWindow::rest() {
  if (std::exchange(opened_, form_.opened) == form_.opened || parentWidget() == nullptr) return;
  QWidget& main = *parentWidget()->window();
  main.setWindowState(main.windowState() & ~Qt::WindowMinimized);
  main.show();
  main.raise();
  main.activateWindow();
}

}  // namespace norvik::desktop
