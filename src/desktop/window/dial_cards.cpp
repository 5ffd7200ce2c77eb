#include "desktop/window/dial_cards.h"

#include "desktop/bind/choice_bindings.h"
#include "desktop/bind/list_binding.h"
#include "desktop/bind/text_binding.h"
#include "desktop/window/dial_names.h"
#include "desktop/window/headings.h"
#include "desktop/window/hint.h"
#include "desktop/window/overlay.h"
#include "figure/actor_entry.h"

#include <QAction>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

/// Over the channels, whatever the width of their pane.
QRect overChannels(const QWidget& over, const QRect& area) {
  const auto* pane = over.findChild<QWidget*>(QStringLiteral("SourcePane"));
  if (pane == nullptr) return area;
  return {pane->mapTo(&over, QPoint(0, kPaneMargin)),
          pane->size() - QSize(kPaneMargin, 2 * kPaneMargin)};
}

Overlay* makeCardOverChannels(QWidget& over) {
  return new Overlay(over,
                     [&over](const QRect& area, const QSize&) { return overChannels(over, area); });
}

QLabel* headingOf(const QString& text, QWidget& parent, QWidget& buddy) {
  auto* heading = new QLabel(text, &parent);
  makeHeading(*heading);
  heading->setBuddy(&buddy);
  return heading;
}

void focusWhenShown(Maker& maker, front::Control& control, QWidget& widget) {
  maker.watch({&control}, [&control, &widget, before = false]() mutable {
    const bool shownNow = control.visible();
    if (shownNow && !before) widget.setFocus(Qt::OtherFocusReason);
    before = shownNow;
  });
}

void makeReorderCard(Maker& maker, front::Opening& opening, QWidget& over) {
  auto* card = makeCardOverChannels(over);
  card->setObjectName(QStringLiteral("ReorderCard"));
  auto* grid = new QGridLayout(card);
  auto& left = maker.list(opening.ListChannelsReorderByPart, *card);
  auto& right = maker.list(opening.ListChannelsReorderNewOrder, *card);
  // An actor whose name goes on behind the part's has its channels here, too.
  for (ListView* view : {&left, &right}) showDialNames(*view, true);
  left.setAccessibleName(QStringLiteral("Channels of the part"));
  right.setAccessibleName(QStringLiteral("Channels in their new order"));
  grid->addWidget(makeHint(QStringLiteral("Click the channels in the order that they are to have; "
                                          "those that are left follow as they stand. Then press "
                                          "Done. Escape puts this away."),
                           *card),
                  0, 0, 1, 2);
  grid->addWidget(headingOf(QStringLiteral("&Channels of the part"), *card, left), 1, 0);
  grid->addWidget(headingOf(QStringLiteral("New o&rder"), *card, right), 1, 1);
  grid->addWidget(&left, 2, 0);
  grid->addWidget(&right, 2, 1);
  right.setToolTip(QStringLiteral("Alt+Up and Alt+Down move a channel, Delete gives it back."));
  auto* alphabet = new QPushButton(card);
  alphabet->setToolTip(QStringLiteral("Takes the channels that are left by the alphabet"));
  maker.bindings().add(
      std::make_unique<OptionBinding>(maker.dispatcher(), opening.OptionAlphabetize, *alphabet));
  auto& done = maker.picture(opening.PictureChannelReorderDone, *card, 20);
  done.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  done.setAutoRaise(false);
  grid->addWidget(alphabet, 3, 0, Qt::AlignLeft);
  grid->addWidget(&done, 3, 1, Qt::AlignRight);
  grid->setRowStretch(2, 1);
  maker.showWhileAny(*card, {&opening.ListChannelsReorderByPart});
  focusWhenShown(maker, opening.ListChannelsReorderByPart, left);
}

void makeSpeedCard(Maker& maker, front::Opening& opening, QWidget& over) {
  auto* card = makeCardOverChannels(over);
  card->setObjectName(QStringLiteral("SpeedCard"));
  auto* column = new QVBoxLayout(card);
  auto& list = maker.list(opening.ListChannelsReorder, *card);
  showDialNames(list, true);
  list.setAccessibleName(QStringLiteral("All dials"));
  column->addWidget(headingOf(QStringLiteral("&Tracking speed"), *card, list));
  column->addWidget(makeHint(
      QStringLiteral("Click the dial whose speed is to change. Escape puts the list away."),
      *card));
  column->addWidget(&list, 1);
  maker.showWhileAny(*card, {&opening.ListChannelsReorder});
  focusWhenShown(maker, opening.ListChannelsReorder, list);
}

void makeHiddenDialsCard(Maker& maker, front::Opening& opening, QWidget& over) {
  auto* card = new Overlay(over, [](const QRect& area, const QSize&) {
    return inTheMiddle(area, {460, 420});
  });
  card->setObjectName(QStringLiteral("HiddenDialsCard"));
  auto* outside = new QVBoxLayout(card);
  auto& frame = maker.frame(opening.FrameDialHiding, *card);
  frame.setFlat(true);
  outside->addWidget(&frame);
  auto* column = new QVBoxLayout(&frame);
  column->setContentsMargins(0, 6, 0, 0);
  auto& list = maker.list(opening.ListHideDialsChannels, frame);
  list.setAccessibleName(QStringLiteral("Dials that are hidden"));
  // Each click turns one dial over.
  list.setSelectionMode(QAbstractItemView::MultiSelection);
  column->addWidget(headingOf(QStringLiteral("Hidden &dials"), frame, list));
  column->addWidget(makeHint(QStringLiteral("The dials that are selected will be hidden, all "
                                            "others will show. Done asks where to save the figure; "
                                            "Escape changes nothing."),
                             frame));
  column->addWidget(&list, 1);
  QWidget* done = maker.make(opening.CommandDialHideDone, frame);
  column->addWidget(done, 0, Qt::AlignRight);
  maker.showWhileAny(*card, {&opening.FrameDialHiding});
  focusWhenShown(maker, opening.FrameDialHiding, list);
}

/// A card that a menu entry brings and Escape puts away; its controls are there with any figure.
Overlay* makeMenuCard(Maker& maker, QWidget& over, QAction& action, front::Control& control,
                      std::function<void()> shown) {
  auto* card = new Overlay(over, [](const QRect& area, const QSize& wanted) {
    return QRect(QPoint(12, 8), wanted.boundedTo(area.size() - QSize(24, 16)));
  });
  QObject::connect(&action, &QAction::triggered, card, [card, &control, shown = std::move(shown)] {
    if (!control.visible()) return;
    card->show();
    shown();
  });
  auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), card);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  QObject::connect(escape, &QShortcut::activated, card, &QWidget::hide);
  maker.watch({&control}, [card, &control] {
    if (!control.visible()) card->hide();
  });
  return card;
}

/// Binds a widget whose card says when it is seen.
void bindWithinCard(Maker& maker, std::unique_ptr<WidgetBinding> binding) {
  binding->setShower([](bool) {});
  maker.bindings().add(std::move(binding));
}

void makeLimitsCard(Maker& maker, front::Opening& opening, QWidget& over, const MenuTree& menus) {
  auto* edit = new QLineEdit;
  front::TextBox& box = opening.TextForceLimits;
  // The part that is selected is the one that is meant, as a rule.
  const auto offerPart = [&maker, &opening, &box, edit] {
    const auto entry = opening.ListActors.chosen();
    if (figure::namesActor(entry)) box.setText(figure::actorName(entry));
    maker.dispatcher().sync();
    edit->setFocus(Qt::OtherFocusReason);
    edit->selectAll();
  };
  auto* card = makeMenuCard(maker, over, *menus.action(opening.MenuLimits), box, offerPart);
  card->setObjectName(QStringLiteral("LimitsCard"));
  auto* grid = new QGridLayout(card);
  edit->setParent(card);
  edit->setMinimumWidth(240);
  edit->setAccessibleName(QStringLiteral("Body part"));
  bindWithinCard(maker, std::make_unique<LineBinding>(maker.dispatcher(), box, *edit, *edit));
  auto* label = new QLabel(QStringLiteral("Limits of the body p&art"), card);
  label->setBuddy(edit);
  grid->addWidget(label, 0, 0);
  grid->addWidget(edit, 0, 1);
  grid->addWidget(makeHint(QStringLiteral("Enter forces the part's first limit, or gives it back. "
                                          "Escape puts this away."),
                           *card),
                  1, 0, 1, 2);
}

void makeTwistCard(Maker& maker, front::Opening& opening, QWidget& over, const MenuTree& menus) {
  auto* remove = new ListView(nullptr);
  auto* card = makeMenuCard(maker, over, *menus.action(opening.MenuTwist), opening.ListTwistRemove,
                            [remove] { remove->setFocus(Qt::OtherFocusReason); });
  card->setObjectName(QStringLiteral("TwistCard"));
  auto* grid = new QGridLayout(card);
  remove->setParent(card);
  auto* restore = new ListView(card);
  struct Side {
    front::ListBox& list;
    ListView* view;
    QString heading;
    QString name;
  };
  const Side sides[] = {{opening.ListTwistRemove, remove, QStringLiteral("&Comment out"),
                         QStringLiteral("Comment twist parameters out")},
                        {opening.ListTwistRestore, restore, QStringLiteral("&Bring back"),
                         QStringLiteral("Bring twist parameters back")}};
  int column = 0;
  for (const Side& side : sides) {
    constexpr int kRows = 3;
    side.view->setAccessibleName(side.name);
    side.view->setFixedHeight(kRows * (card->fontMetrics().height() + 7) + 6);
    side.view->setMinimumWidth(230);
    bindWithinCard(maker, std::make_unique<ListBinding>(maker.dispatcher(), side.list, *side.view));
    grid->addWidget(headingOf(side.heading, *card, *side.view), 0, column);
    grid->addWidget(side.view, 1, column);
    ++column;
  }
  grid->addWidget(makeHint(QStringLiteral("Click the part whose twist parameters are meant. The "
                                          "figure is changed at once. Escape puts this away."),
                           *card),
                  2, 0, 1, 2);
}

}  // namespace

void makeDialCards(Maker& maker, front::Opening& opening, QWidget& over, const MenuTree& menus) {
  makeReorderCard(maker, opening, over);
  makeSpeedCard(maker, opening, over);
  makeHiddenDialsCard(maker, opening, over);
  makeLimitsCard(maker, opening, over, menus);
  makeTwistCard(maker, opening, over, menus);
}

}  // namespace norvik::desktop
