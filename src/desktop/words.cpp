#include "desktop/words.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>

namespace norvik::desktop {

namespace {

QByteArrayView view(std::string_view bytes) {
  return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

bool isAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Whether bytes are shown as characters of their own number.
bool isSingleByte(std::string_view bytes) {
  if (isAscii(bytes)) return false;
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString text = decoder(view(bytes));
  return decoder.hasError();
}

}  // namespace

QString shown(std::string_view bytes) {
  if (isAscii(bytes)) return QString::fromLatin1(view(bytes));
  QStringDecoder decoder(QStringDecoder::Utf8);
  QString text = decoder(view(bytes));
  return decoder.hasError() ? QString::fromLatin1(view(bytes)) : text;
}

std::string typed(const QString& text, std::string_view before) {
  const bool fits =
      std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 256; });
  if (fits && isSingleByte(before)) return text.toLatin1().toStdString();
  return text.toStdString();
}

QString shownMessage(std::string_view bytes) {
  return shown(bytes).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::string hostBytes(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

QString hostName(std::string_view bytes) {
  return QFile::decodeName(view(bytes).toByteArray());
}

}  // namespace norvik::desktop
