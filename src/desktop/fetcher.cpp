#include "desktop/fetcher.h"

#include "desktop/words.h"
#include "text/classic_errors.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace norvik::desktop {

front::Fetched fetchInto(text::Disk& disk, std::string_view address, std::string_view path) {
  constexpr int kPatience = 20000;  // milliseconds
  QNetworkAccessManager network;
  QNetworkRequest request{QUrl(shown(address))};
  request.setTransferTimeout(kPatience);
  const std::unique_ptr<QNetworkReply> reply(network.get(request));
  QEventLoop wait;
  QObject::connect(reply.get(), &QNetworkReply::finished, &wait, &QEventLoop::quit);
  if (!reply->isFinished()) wait.exec(QEventLoop::ExcludeUserInputEvents);

  if (reply->error() != QNetworkReply::NoError) {
    return {false, static_cast<int>(reply->error()), reply->errorString().toStdString()};
  }
  const QByteArray bytes = reply->readAll();
  const int error =
      disk.openForWriting(path)->write({bytes.data(), static_cast<std::size_t>(bytes.size())});
  text::raise(error, path, text::FileAct::writing);
  return {true, 0, {}};
}

}  // namespace norvik::desktop
