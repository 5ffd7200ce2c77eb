#include "desktop/window/status_line.h"

#include "desktop/link_line.h"
#include "desktop/theme.h"
#include "text/number_text.h"

#include <QAbstractButton>
#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>

namespace norvik::desktop {

StatusLine::StatusLine(Maker& maker, front::Opening& opening, PassStop& passStop, QStatusBar& bar)
    : state_(new QLabel(&bar)),
      result_(new LinkLine(&bar)),
      progress_(new QProgressBar(&bar)),
      passStop_(passStop),
      cancel_(passStop.addButton(bar)) {
  constexpr int kPermille = 1000;
  constexpr int kWidth = 180;
  state_->setObjectName(QStringLiteral("StatusText"));
  state_->setContentsMargins(6, 0, 0, 0);
  bar.addWidget(state_);
  result_->setObjectName(QStringLiteral("Result"));
  result_->setAccessibleName(QStringLiteral("What the last tool has left"));
  // A long line is cut short, and its tip tells all of it: the window stays as narrow as it may be.
  result_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  bar.addWidget(result_, 1);
  QObject::connect(result_, &QLabel::linkActivated, result_, [this](const QString& link) {
    const auto index = static_cast<std::size_t>(link.toUInt());
    if (index >= actions_.size()) return;
    // What it does may be followed by another offer.
    const std::function<void()> act = actions_[index].act;
    act();
  });
  progress_->setObjectName(QStringLiteral("Progress"));
  progress_->setAccessibleName(QStringLiteral("Progress"));
  progress_->setRange(0, kPermille);
  progress_->setTextVisible(false);
  progress_->setFixedSize(kWidth, 10);
  progress_->hide();
  bar.addPermanentWidget(progress_);
  bar.addPermanentWidget(&cancel_);
  cancel_.hide();

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

void StatusLine::offer(const QString& text, const QString& tip, std::vector<ResultAction> actions) {
  actions_ = std::move(actions);
  const QString colour = accentOf(result_->palette()).name();
  QString line = text.toHtmlEscaped();
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    line += QStringLiteral(" &nbsp;<a href=\"%1\" style=\"color: %2\">%3</a>")
                .arg(QString::number(i), colour, actions_[i].name.toHtmlEscaped());
  }
  result_->setLine(line);
  result_->setToolTip(tip);
}

void StatusLine::withdraw() {
  actions_.clear();
  result_->setLine({});
  result_->setToolTip(QString());
}

void StatusLine::rest() {
  progress_->hide();
}

void StatusLine::setProgress(std::uint64_t position, std::uint64_t size) {
  constexpr std::uint64_t kLarge = std::uint64_t{4} << 20U;
  if (size < kLarge) return;
  progress_->setValue(static_cast<int>(std::min(position, size) * 1000 / size));
  progress_->show();
  cancel_.setVisible(passStop_.running());
}

}  // namespace norvik::desktop
