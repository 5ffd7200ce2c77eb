#include "desktop/window/template_size.h"

#include "desktop/words.h"
#include "graphics/stretched_bmp.h"
#include "obj/save_map.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

QString whatIsWritten(const front::Session& session, const front::TextBox& size) {
  const auto file = obj::mapFile(session.opening, size);
  if (!file) return QStringLiteral("A whole number from 1 to %1").arg(graphics::kMostPixels);
  const auto bytes = static_cast<qint64>(graphics::stretchedBmpBytes({file->pixels, file->pixels}));
  return QStringLiteral("%1 by %1 pixels, %2, saved as %3")
      .arg(QString::number(file->pixels), QLocale().formattedDataSize(bytes), shown(file->path));
}

}  // namespace

QWidget* makeTemplateSize(Maker& maker, front::Session& session, front::TextBox& size,
                          const QString& name, QWidget& parent) {
  auto* room = new QWidget(&parent);
  auto* column = new QVBoxLayout(room);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  auto* row = new QHBoxLayout;
  auto& entry = maker.line(size, *room);
  entry.setPlaceholderText(name);
  entry.setAccessibleName(name);
  row->addWidget(&entry, 1);
  for (const int pixels : {512, 1024, 2048, 4096}) {
    const QString number = QString::number(pixels);
    auto* button = new QPushButton(number, room);
    constexpr int kRoom = 18;
    button->setFixedWidth(button->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + kRoom);
    button->setAccessibleName(QStringLiteral("%1 pixels").arg(number));
    QObject::connect(button, &QPushButton::clicked, &entry, [&maker, &size, &entry, pixels] {
      size.setText(std::to_string(pixels));
      maker.dispatcher().sync();
      entry.setFocus();
    });
    row->addWidget(button);
  }
  column->addLayout(row);
  auto* words = new QLabel(room);
  words->setWordWrap(true);
  words->setForegroundRole(QPalette::PlaceholderText);
  column->addWidget(words);
  maker.watch({&size}, [words, &session, &size] { words->setText(whatIsWritten(session, size)); });
  maker.showWhileAny(*room, {&size});
  return room;
}

}  // namespace norvik::desktop
