#include "desktop/window/overlays.h"

#include "desktop/bind/text_binding.h"
#include "desktop/window/escape.h"
#include "desktop/window/headings.h"
#include "desktop/window/overlay.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace norvik::desktop {

namespace {

/// A card with a list that is as high as its items, up to a number of rows.
Overlay* makeListCard(Maker& maker, front::ListBox& list, QWidget& over, Overlay::Placer placer,
                      const QString& title) {
  auto* card = new Overlay(over, std::move(placer));
  auto* column = new QVBoxLayout(card);
  column->setContentsMargins(1, 1, 1, 1);
  if (!title.isEmpty()) {
    auto* heading = new QLabel(title, card);
    makeHeading(*heading);
    heading->setContentsMargins(8, 6, 8, 2);
    column->addWidget(heading);
  }
  auto& view = maker.list(list, *card);
  view.setFrameStyle(QFrame::NoFrame);
  view.setAccessibleName(title);
  column->addWidget(&view);
  maker.showWhileAny(*card, {&list});
  maker.watch({&list}, [card] {
    if (card->isVisible()) card->place();
  });
  return card;
}

int rowsHeight(const front::ListBox& list, const QWidget& widget, int most) {
  const int row = widget.fontMetrics().height() + 6;
  return row * std::clamp(list.count(), 1, most) + 12;
}

void makeRecentCard(Maker& maker, front::Opening& opening, QWidget& over) {
  const auto place = [&opening, &over](const QRect& area, const QSize&) {
    constexpr int kMost = 10;
    const int heading = over.fontMetrics().height() + 14;
    const QSize size(std::min(640, area.width() - 24),
                     rowsHeight(opening.ListMRU, over, kMost) + heading);
    return QRect(QPoint(12, 8), size.boundedTo(area.size() - QSize(24, 16)));
  };
  auto* card = makeListCard(maker, opening.ListMRU, over, place, QStringLiteral("Recent files"));
  maker.watch({&opening.ListMRU}, [card, &opening] {
    auto* view = card->findChild<ListView*>();
    if (opening.ListMRU.visible() && !view->hasFocus()) view->setFocus();
  });
}

void makeTextureCard(Maker& maker, front::Opening& opening, QWidget& over) {
  const auto place = [&opening, &over](const QRect& area, const QSize&) {
    constexpr int kMost = 8;
    const auto* box = over.findChild<QWidget*>(QStringLiteral("TextMainTex"));
    const QPoint corner = box == nullptr ? area.center() : box->mapTo(&over, QPoint(0, 0));
    const int below = box == nullptr ? 0 : box->height() + 2;
    const int wanted = static_cast<int>(opening.ListAllTexMaps.box().width) + 24;
    QRect card(corner + QPoint(0, below),
               QSize(std::clamp(wanted, 240, std::max(240, area.width() - corner.x() - 16)),
                     rowsHeight(opening.ListAllTexMaps, over, kMost)));
    // At the window's lower edge the list lies over the box.
    if (card.bottom() > area.bottom() - 4) card.moveBottom(corner.y() - 2);
    return card;
  };
  auto* card = makeListCard(maker, opening.ListAllTexMaps, over, place, {});
  auto* view = card->findChild<ListView*>();
  view->setAccessibleName(QStringLiteral("All textures of the file"));
  auto* box = over.findChild<QWidget*>(QStringLiteral("TextMainTex"));
  if (box == nullptr) return;
  // What the mouse over the box does, Down does in it; the list then has the keys until it goes.
  auto* down = new QShortcut(QKeySequence(Qt::Key_Down), box);
  down->setContext(Qt::WidgetShortcut);
  QObject::connect(down, &QShortcut::activated, view, [&maker, &opening, view] {
    maker.dispatcher().raise(opening.TextMainTex.moved, front::Mouse{});
    if (view->isVisible()) view->setFocus(Qt::OtherFocusReason);
  });
  onEscape(*view, [&maker, &opening] {
    maker.dispatcher().run(opening.ListAllTexMaps.name(), [&] { opening.ListAllTexMaps.hide(); });
  });
  maker.watch({&opening.ListAllTexMaps}, [&opening, view, box] {
    if (!opening.ListAllTexMaps.visible() && view->hasFocus()) box->setFocus();
  });
}

void makeBracketCard(Maker& maker, front::Opening& opening, QWidget& over) {
  constexpr int kPicture = 96;
  constexpr int kPin = 24;
  auto* card = new Overlay(over, inTheMiddle);
  auto* column = new QVBoxLayout(card);
  column->setContentsMargins(20, 12, 20, 16);
  for (front::PictureButton* picture :
       {&opening.PictureBrktsOK, &opening.PictureBrktLeft, &opening.PictureBrktRight}) {
    auto& button = maker.picture(*picture, *card, kPicture);
    button.setMinimumWidth(240);
    column->addWidget(&button, 0, Qt::AlignHCenter);
  }
  card->setOnEscape([&maker, &opening] {
    for (front::PictureButton* picture :
         {&opening.PictureBrktsOK, &opening.PictureBrktLeft, &opening.PictureBrktRight}) {
      if (!picture->visible()) continue;
      maker.dispatcher().raise(picture->pressed, front::Mouse{});
      maker.dispatcher().raise(picture->released, front::Mouse{});
      maker.dispatcher().raise(picture->clicked);
    }
  });
  auto& pin = maker.picture(opening.PicturePushPin, *card, kPin);
  pin.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  column->addWidget(&pin, 0, Qt::AlignHCenter);
  maker.showWhileAny(*card, {&opening.PictureBrktsOK, &opening.PictureBrktLeft,
                             &opening.PictureBrktRight, &opening.PicturePushPin});
  // The result waits for the operator, and both menus with it: once the card is up, the keys put it
  // away.
  for (front::PictureButton* picture :
       {&opening.PictureBrktsOK, &opening.PictureBrktLeft, &opening.PictureBrktRight}) {
    auto* button = card->findChild<QToolButton*>(QString::fromStdString(picture->name()));
    maker.watch({picture}, [picture, button] {
      if (picture->visible() && !button->hasFocus()) button->setFocus(Qt::OtherFocusReason);
    });
  }
  maker.watch({&opening.PicturePushPin}, [card] {
    if (card->isVisible()) card->place();
  });
}

void makeNotesCard(Maker& maker, front::Opening& opening, QWidget& over) {
  auto* card = new Overlay(over, [](const QRect& area, const QSize&) {
    return inTheMiddle(area, {460, 300});
  });
  auto* column = new QVBoxLayout(card);
  auto* heading = new QLabel(QStringLiteral("Notes"), card);
  makeHeading(*heading);
  column->addWidget(heading);
  auto* page = new QPlainTextEdit(card);
  page->setAccessibleName(QStringLiteral("Notes"));
  page->setTabChangesFocus(true);
  maker.bindings().add(
      std::make_unique<PageBinding>(maker.dispatcher(), opening.TextOpeningNotes, *page));
  column->addWidget(page);
  maker.showWhileAny(*card, {&opening.TextOpeningNotes});
  maker.watch({&opening.TextOpeningNotes}, [&opening, page] {
    if (opening.TextOpeningNotes.visible() && !page->hasFocus()) page->setFocus();
  });
}

}  // namespace

void makeOverlays(Maker& maker, front::Opening& opening, QWidget& over) {
  makeRecentCard(maker, opening, over);
  makeTextureCard(maker, opening, over);
  makeNotesCard(maker, opening, over);
  makeBracketCard(maker, opening, over);
}

}  // namespace norvik::desktop
