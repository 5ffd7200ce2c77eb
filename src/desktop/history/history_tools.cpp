#include "desktop/history/history_tools.h"

#include "desktop/theme.h"
#include "desktop/words.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

namespace norvik::desktop {

HistoryTools::HistoryTools(Restorer restorer, QMainWindow& window) : restorer_(restorer) {
  addToMenu(window);
  addToStatusBar(window);
  if (restorer_.history() == nullptr) return;
  restorer_.history()->setListener([this](const text::HistoryEntry& entry) { tell(entry); });
}

HistoryTools::~HistoryTools() {
  if (restorer_.history() != nullptr) restorer_.history()->setListener({});
}

void HistoryTools::addToMenu(QMainWindow& window) {
  auto* menu = window.menuBar()->findChild<QMenu*>(QStringLiteral("ViewMenu"));
  if (menu == nullptr) return;
  menu->addSeparator();
  QAction* list = menu->addAction(QStringLiteral("&History..."));
  list->setObjectName(QStringLiteral("History"));
  QObject::connect(list, &QAction::triggered, &window, [this, &window] { showWindow(window); });
  QAction* undo = menu->addAction(QStringLiteral("&Undo the Last Replacement..."));
  undo->setObjectName(QStringLiteral("UndoLast"));
  // A text box with the keys takes this one for its own.
  undo->setShortcut(QKeySequence::Undo);
  QObject::connect(undo, &QAction::triggered, &window, [this] { restorer_.undoLast(); });
}

void HistoryTools::addToStatusBar(QMainWindow& window) {
  news_ = new LinkLine(window.statusBar());
  news_->setObjectName(QStringLiteral("HistoryNews"));
  news_->setAccessibleName(QStringLiteral("What was replaced last"));
  window.statusBar()->addPermanentWidget(news_);
  QObject::connect(news_, &QLabel::linkActivated, &window, [this] {
    // The restoring tells its own news.
    if (last_ != 0) restorer_.restore(last_);
  });
}

void HistoryTools::tell(const text::HistoryEntry& entry) {
  if (news_ == nullptr) return;
  last_ = entry.number;
  const QString name = shown(text::fileTitle(entry.path)).toHtmlEscaped();
  const QString what = shown(text::lossName(entry.what));
  news_->setLine(entry.number == 0
                     ? QStringLiteral("%1 %2; no earlier version was kept").arg(name, what)
                     : QStringLiteral("%1 %2 &nbsp;<a href=\"undo\" style=\"color: %3\">Undo</a>")
                           .arg(name, what, accentOf(news_->palette()).name()));
}

void HistoryTools::showWindow(QMainWindow& window) {
  if (list_ == nullptr) list_ = new HistoryWindow(restorer_, &window);
  list_->show();
  list_->raise();
  list_->activateWindow();
}

}  // namespace norvik::desktop
