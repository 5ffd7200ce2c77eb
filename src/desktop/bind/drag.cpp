#include "desktop/bind/drag.h"

#include "desktop/bind/drop_mark.h"
#include "desktop/words.h"

#include <QDrag>
#include <QFontMetrics>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QUrl>
#include <QWidget>

namespace norvik::desktop {

namespace {

const QString kMime = QStringLiteral("application/x-norvik-control");

QPixmap tag(const QWidget& from, const QString& caption) {
  const QFontMetrics metrics(from.font());
  const QString text = metrics.elidedText(caption.trimmed(), Qt::ElideRight, 240);
  const QSize size(metrics.horizontalAdvance(text) + 16, metrics.height() + 8);
  const qreal ratio = from.devicePixelRatioF();
  QPixmap picture(size * ratio);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(from.palette().highlight());
  painter.drawRoundedRect(QRect({}, size), 4, 4);
  painter.setPen(from.palette().highlightedText().color());
  painter.setFont(from.font());
  painter.drawText(QRect({}, size), Qt::AlignCenter, text);
  return picture;
}

}  // namespace

void dragControl(const front::Control& control, QWidget& from, const QString& caption) {
  auto* data = new QMimeData;  // the drag owns it
  const std::string name = control.form().name() + "." + control.name();
  data->setData(kMime, QByteArray::fromStdString(name));
  auto* drag = new QDrag(&from);  // lives until the mouse lets go, then deletes itself
  drag->setMimeData(data);
  drag->setPixmap(tag(from, caption));
  drag->setHotSpot({-12, -4});
  const DropMarks marks;
  drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
}

bool carriesControl(const QMimeData& data) {
  return data.hasFormat(kMime);
}

bool carriesFile(const QMimeData& data) {
  const auto urls = data.urls();
  return !urls.isEmpty() && urls.constFirst().isLocalFile();
}

front::Control* draggedControl(const QMimeData& data, const front::Session& session) {
  if (!carriesControl(data)) return nullptr;
  const std::string name = data.data(kMime).toStdString();
  const auto dot = name.find('.');
  const front::Form* form = session.findForm(name.substr(0, dot));
  return form == nullptr || dot == std::string::npos ? nullptr : form->find(name.substr(dot + 1));
}

std::string droppedFile(const QMimeData& data, const front::Session& session) {
  if (!carriesFile(data)) return {};
  return session.disk.systemPath(hostBytes(data.urls().constFirst().toLocalFile())).value_or("");
}

std::vector<std::string> droppedFiles(const QMimeData& data, const front::Session& session) {
  std::vector<std::string> files;
  for (const QUrl& url : data.urls()) {
    if (!url.isLocalFile()) continue;
    auto file = session.disk.systemPath(hostBytes(url.toLocalFile()));
    if (file) files.push_back(std::move(*file));
  }
  return files;
}

}  // namespace norvik::desktop
