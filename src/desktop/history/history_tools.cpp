#include "desktop/history/history_tools.h"

#include "desktop/history/history_news.h"
#include "desktop/link_line.h"
#include "desktop/theme.h"
#include "desktop/words.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

namespace norvik::desktop {

namespace {

constexpr const char* kUndoLink = "undo";
constexpr const char* kFollowed = "followed";

QString linkTo(const char* target, const QString& text, const QPalette& palette) {
  return QStringLiteral(" &nbsp;<a href=\"%1\" style=\"color: %2\">%3</a>")
      .arg(QString::fromLatin1(target), accentOf(palette).name(), text);
}

}  // namespace

HistoryTools::HistoryTools(Restorer restorer, QMainWindow& window)
    : restorer_(restorer), window_(&window) {
  addToMenu(window);
  window.statusBar()->addPermanentWidget(makeHistoryNews(*window.statusBar()));
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

void HistoryTools::tell(const text::HistoryEntry& entry) {
  if (window_ == nullptr) return;
  const QString name = shown(text::fileTitle(entry.path)).toHtmlEscaped();
  const QString what = shown(text::lossName(entry.what));
  const QString fact = name + QLatin1Char(' ') + what;
  if (entry.number == 0) {
    last_ = 0;
    return tellAll(fact + QStringLiteral("; no earlier version was kept"));
  }
  const bool sameAct = last_ != 0 && handler_ == restorer_.handlers();
  others_ = sameAct ? others_ + 1 : 0;
  last_ = entry.number;
  handler_ = restorer_.handlers();
  QString news = fact + linkTo(kUndoLink, QStringLiteral("Undo"), window_->palette());
  if (others_ > 0) {
    news += linkTo("list", QStringLiteral("and %1 more").arg(others_), window_->palette());
  }
  tellAll(news);
}

/// A window that is there by now and was not the last time is followed from now on.
void HistoryTools::tellAll(const QString& news) {
  for (QLabel* label : window_->findChildren<QLabel*>(QString::fromLatin1(kHistoryNews))) {
    if (auto* line = dynamic_cast<LinkLine*>(label)) line->setLine(news);
    if (label->property(kFollowed).toBool()) continue;
    label->setProperty(kFollowed, true);
    QObject::connect(label, &QLabel::linkActivated, window_,
                     [this](const QString& link) { follow(link); });
  }
}

void HistoryTools::follow(const QString& link) {
  if (link != QLatin1String(kUndoLink)) return showWindow(*window_);
  // The restoring tells its own news.
  if (last_ != 0) restorer_.restore(last_);
}

void HistoryTools::showWindow(QMainWindow& window) {
  if (list_ == nullptr) list_ = new HistoryWindow(restorer_, &window);
  list_->show();
  list_->raise();
  list_->activateWindow();
}

}  // namespace norvik::desktop
