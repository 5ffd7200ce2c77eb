#include "desktop/images.h"

#include <QBuffer>
#include <QImageReader>

namespace norvik::desktop {

QImage imageOn(const graphics::Surface& surface) {
  const auto rowBytes =
      static_cast<qsizetype>(surface.width()) * static_cast<qsizetype>(sizeof(std::uint32_t));
  return {reinterpret_cast<const uchar*>(surface.pixels().data()), surface.width(),
          surface.height(), rowBytes, QImage::Format_RGB32};
}

graphics::Surface surfaceOf(const QImage& image) {
  const QImage plain = image.convertToFormat(QImage::Format_RGB32);
  graphics::Surface surface(plain.width(), plain.height());
  for (int y = 0; y < plain.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(plain.constScanLine(y));
    for (int x = 0; x < plain.width(); ++x) {
      const QRgb pixel = row[x];
      surface.setPixel({x, y}, graphics::colourOf(static_cast<unsigned>(qRed(pixel)),
                                                  static_cast<unsigned>(qGreen(pixel)),
                                                  static_cast<unsigned>(qBlue(pixel))));
    }
  }
  return surface;
}

std::optional<graphics::Surface> decodedPicture(std::string_view bytes) {
  constexpr int kMostMegabytes = 1024;  // a map of 16384 by 16384
  QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&data);
  QImageReader::setAllocationLimit(kMostMegabytes);
  QImageReader reader(&buffer);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  const QImage image = reader.read();
  if (image.isNull()) return std::nullopt;
  return surfaceOf(image);
}

}  // namespace norvik::desktop
