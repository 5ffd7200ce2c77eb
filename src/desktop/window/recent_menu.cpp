#include "desktop/window/recent_menu.h"

#include "desktop/words.h"

#include <QMenu>

namespace norvik::desktop {

namespace {

void fill(QMenu& menu, MenuTree& menus, Dispatcher& dispatcher, front::Opening& opening) {
  menu.clear();
  QAction* list = menu.addAction(QStringLiteral("Show the &List"));
  list->setObjectName(QStringLiteral("ShowRecentList"));
  QObject::connect(list, &QAction::triggered, &menu,
                   [&menus, &opening] { menus.choose(opening.menuRecent); });
  menu.addSeparator();
  const front::ListBox& files = opening.ListMRU;
  for (int i = files.count() - 1; i >= 0; --i) {
    const QString path = shown(files.item(i)).replace(QLatin1Char('&'), QStringLiteral("&&"));
    const int number = files.count() - i;
    const QString key = number < 10 ? QStringLiteral("&%1  ").arg(number) : QStringLiteral("    ");
    QAction* file = menu.addAction(key + path);
    QObject::connect(file, &QAction::triggered, &menu, [&dispatcher, &opening, i] {
      if (!dispatcher.open()) return;
      opening.ListMRU.choose(i);
      dispatcher.raise(opening.ListMRU.clicked);
    });
  }
}

}  // namespace

void addRecentMenu(MenuTree& menus, Dispatcher& dispatcher, front::Opening& opening) {
  QAction* action = menus.action(opening.menuRecent);
  auto* menu = new QMenu(menus.menu(opening.menuFile));
  menu->setObjectName(QStringLiteral("RecentMenu"));
  action->setMenu(menu);
  QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, &menus, &dispatcher, &opening] {
    fill(*menu, menus, dispatcher, opening);
  });
}

}  // namespace norvik::desktop
