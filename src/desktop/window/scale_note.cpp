#include "desktop/window/scale_note.h"

#include "desktop/words.h"

#include <QLocale>

namespace norvik::desktop {

ScaleNote::ScaleNote(Maker& maker, front::Opening& opening, QWidget& parent)
    : QLabel(&parent), maker_(maker), opening_(opening) {
  constexpr int kRest = 300;  // milliseconds without a key
  setObjectName(QStringLiteral("ScaleNote"));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  hide();
  rest_.setSingleShot(true);
  rest_.setInterval(kRest);
  slice_.setInterval(0);
  QObject::connect(&rest_, &QTimer::timeout, this, [this] { begin(); });
  QObject::connect(&slice_, &QTimer::timeout, this, [this] { readOn(); });
  maker.watch({&opening.TextOBJScale, &opening.LabelOBJFileName}, [this] { look(); });
}

void ScaleNote::forget() {
  rest_.stop();
  slice_.stop();
  forecast_.reset();
  hide();
}

void ScaleNote::look() {
  std::pair<std::string, std::string> asked;
  if (opening_.TextOBJScale.visible()) {
    asked = {opening_.LabelOBJFileName.caption(), opening_.TextOBJScale.text()};
  }
  if (std::exchange(asked_, asked) == asked) return;
  forget();
  if (obj::scaleAmount(asked_.second)) rest_.start();
}

void ScaleNote::begin() {
  const auto amount = obj::scaleAmount(asked_.second);
  if (!amount || !maker_.dispatcher().attached()) return;
  std::string name;
  const text::Disk& disk = maker_.dispatcher().session().disk;
  text::ignoringErrors([&] { name = disk.hostPath(asked_.first); });
  std::unique_ptr<text::HostFile> file;
  if (host_->open(name, text::HostOpenMode::read, file) != 0) return;
  forecast_ = std::make_unique<obj::ScaleForecast>(std::move(file), *amount);
  slice_.start();
}

void ScaleNote::readOn() {
  bool more = false;
  if (!text::ignoringErrors([&] { more = forecast_->readOn(); })) return forget();
  if (more) return;
  slice_.stop();
  tell();
}

void ScaleNote::tell() {
  const std::uint64_t count = forecast_->withoutPoint();
  if (count == 0) return forget();
  const QString what = count == 1 ? QStringLiteral("1 coordinate of this file")
                                  : QStringLiteral("%1 coordinates of this file")
                                        .arg(QLocale().toString(static_cast<qulonglong>(count)));
  setText(QStringLiteral("%1 will be written without their point. The first such line as it is, "
                         "and as it will be:\n%2\n%3")
              .arg(what, shown(forecast_->before()), shown(forecast_->after())));
  forecast_.reset();
  show();
}

}  // namespace norvik::desktop
