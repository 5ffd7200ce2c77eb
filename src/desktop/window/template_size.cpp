#include "desktop/window/template_size.h"

#include "desktop/template_png.h"
#include "desktop/words.h"
#include "front/finished_file.h"
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

/// The template beside the stated one, which is saved or not whatever becomes of this.
void savePng(Maker& maker, front::Session& session, front::TextBox& size, QLabel& words) {
  maker.dispatcher().run("SaveTransparent", [&] {
    const auto file = obj::mapFile(session.opening, size);
    if (!file) throw text::FileError(text::ErrorNumber::pictureNotMade);
    session.hourglass(true);
    auto& form = dynamic_cast<front::FormOBJ&>(size.form());
    saveTransparentTemplate(session, obj::mapSheet(form, size).surface(), file->pixels,
                            file->transparent);
    session.hourglass(false);
    session.front.tellOf({.path = file->transparent});
    words.setText(QStringLiteral("Saved as %1").arg(shown(file->transparent)));
  });
}

QPushButton* makeButton(const QString& text, const char* name, const QString& tip,
                        QWidget& parent) {
  auto* button = new QPushButton(text, &parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setToolTip(tip);
  return button;
}

/// The stated picture, as by the return key, and one without its paper.
QHBoxLayout* makeSaveButtons(Maker& maker, front::Session& session, front::TextBox& size,
                             QLabel& words, QWidget& parent) {
  auto* row = new QHBoxLayout;
  auto* bmp = makeButton(QStringLiteral("Save BMP"), "SaveBmp",
                         QStringLiteral("Black on white, as the return key saves it"), parent);
  auto* png = makeButton(QStringLiteral("Save transparent PNG"), "SavePng",
                         QStringLiteral("The lines alone, on a transparent ground"), parent);
  QObject::connect(bmp, &QPushButton::clicked, bmp,
                   [&maker, &size] { maker.dispatcher().raise(size.key, std::string{"Enter"}); });
  QObject::connect(png, &QPushButton::clicked, png,
                   [&maker, &session, &size, &words] { savePng(maker, session, size, words); });
  maker.watch({&size}, [bmp, png, &session, &size] {
    const bool good = obj::mapFile(session.opening, size).has_value();
    bmp->setEnabled(good);
    png->setEnabled(good);
  });
  row->addWidget(bmp);
  row->addWidget(png);
  row->addStretch();
  return row;
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
  column->addLayout(makeSaveButtons(maker, session, size, *words, *room));
  maker.watch({&size}, [words, &session, &size] { words->setText(whatIsWritten(session, size)); });
  maker.showWhileAny(*room, {&size});
  return room;
}

}  // namespace norvik::desktop
