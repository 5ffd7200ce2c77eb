#include "desktop/template_png.h"

#include "graphics/stretched_rows.h"
#include "text/line_writer.h"

#include <QBuffer>
#include <QImage>

namespace norvik::desktop {

namespace {

constexpr std::string_view kScratch = "\\MapSave.tmp";

/// A bit for each pixel: the largest template fits into memory.
QImage inkOf(const graphics::Surface& surface, int pixels) {
  QImage image(pixels, pixels, QImage::Format_Mono);
  if (image.isNull()) throw text::FileError(text::ErrorNumber::pictureNotMade);
  image.setColorTable({qRgba(0, 0, 0, 0), qRgba(0, 0, 0, 255)});
  image.fill(0U);
  const std::uint32_t paper = 0xFF000000U | graphics::redOf(surface.paper()) << 16U |
                              graphics::greenOf(surface.paper()) << 8U |
                              graphics::blueOf(surface.paper());
  graphics::StretchedRows rows(surface, {pixels, pixels});
  for (int y = 0; y < pixels; ++y) {
    const auto row = rows.row(y);
    uchar* bits = image.scanLine(y);
    for (std::size_t x = 0; x < row.size(); ++x) {
      if (row[x] != paper) bits[x / 8] = static_cast<uchar>(bits[x / 8] | 0x80U >> x % 8);
    }
  }
  return image;
}

}  // namespace

void saveTransparentTemplate(front::Session& session, const graphics::Surface& surface, int pixels,
                             const std::string& path) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (surface.pixels().empty() || !inkOf(surface, pixels).save(&buffer, "PNG")) {
    throw text::FileError(text::ErrorNumber::pictureNotMade);
  }
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  try {
    text::LineWriter file(session.disk, scratch);
    file.bytes({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    file.close();
    session.disk.replace(scratch, path);
  } catch (const text::FileError&) {
    text::ignoringErrors([&] { session.disk.remove(scratch); });
    throw;
  }
}

}  // namespace norvik::desktop
