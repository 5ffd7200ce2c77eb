#include "desktop/window/status_line.h"

#include "text/number_text.h"

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>

namespace norvik::desktop {

StatusLine::StatusLine(Maker& maker, front::Opening& opening, QStatusBar& bar)
    : state_(new QLabel(&bar)), progress_(new QProgressBar(&bar)) {
  constexpr int kPermille = 1000;
  constexpr int kWidth = 180;
  state_->setObjectName(QStringLiteral("StatusText"));
  state_->setContentsMargins(6, 0, 0, 0);
  bar.addWidget(state_, 1);
  progress_->setObjectName(QStringLiteral("Progress"));
  progress_->setAccessibleName(QStringLiteral("Progress"));
  progress_->setRange(0, kPermille);
  progress_->setTextVisible(false);
  progress_->setFixedSize(kWidth, 10);
  progress_->hide();
  bar.addPermanentWidget(progress_);

  auto& size = maker.label(opening.LabelFileSize, bar);
  size.setAccessibleName(QStringLiteral("File size"));
  size.setContentsMargins(0, 0, 6, 0);
  bar.addPermanentWidget(&size);
  maker.watch({&opening.LabelFileSize}, [&size, &opening] {
    constexpr double kMebi = 1024 * 1024;
    const double bytes = text::value(opening.LabelFileSize.caption());
    size.setToolTip(QString::number(bytes / kMebi, 'f', 2) + QStringLiteral(" MiB"));
  });
  // Adding a widget to the bar shows it, whatever the control says.
  size.setVisible(opening.LabelFileSize.visible());
}

void StatusLine::setBusy(bool busy) {
  state_->setText(busy ? QStringLiteral("Working ...") : QString());
  if (!busy) progress_->hide();
}

void StatusLine::say(const QString& text) {
  state_->setText(text);
}

void StatusLine::rest() {
  progress_->hide();
}

void StatusLine::setProgress(std::uint64_t position, std::uint64_t size) {
  constexpr std::uint64_t kLarge = std::uint64_t{4} << 20U;
  if (size < kLarge) return;
  progress_->setValue(static_cast<int>(std::min(position, size) * 1000 / size));
  progress_->show();
}

}  // namespace norvik::desktop
