#include "desktop/window/view_menu.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

namespace norvik::desktop {

QMenu* addViewMenu(QMenuBar& bar, const ViewChoices& choices) {
  struct Entry {
    Theme theme;
    const char* caption;
  };
  auto* menu = bar.addMenu(QStringLiteral("&View"));
  menu->setObjectName(QStringLiteral("ViewMenu"));
  auto* group = new QActionGroup(menu);
  for (const Entry& entry : {Entry{Theme::system, "Colours of the &System"},
                             Entry{Theme::light, "&Light"}, Entry{Theme::dark, "&Dark"}}) {
    QAction* action = menu->addAction(QString::fromLatin1(entry.caption));
    action->setCheckable(true);
    action->setChecked(entry.theme == choices.theme);
    const auto name = themeName(entry.theme);
    action->setObjectName(QStringLiteral("Theme.") +
                          QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
    group->addAction(action);
    QObject::connect(action, &QAction::triggered, menu,
                     [choose = choices.chooseTheme, theme = entry.theme] { choose(theme); });
  }
  menu->addSeparator();
  QAction* animation = menu->addAction(QStringLiteral("Closing &Animation"));
  animation->setObjectName(QStringLiteral("ClosingAnimation"));
  animation->setCheckable(true);
  animation->setChecked(choices.closingAnimation);
  QObject::connect(animation, &QAction::toggled, menu, choices.chooseClosingAnimation);
  return menu;
}

}  // namespace norvik::desktop
