#include "desktop/history/history_news.h"

#include <QLabel>

namespace norvik::desktop {

QLabel* makeHistoryNews(QWidget& parent) {
  auto* news = new QLabel(&parent);
  news->setObjectName(QString::fromLatin1(kHistoryNews));
  news->setAccessibleName(QStringLiteral("What was replaced last"));
  news->setTextFormat(Qt::RichText);
  news->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  return news;
}

}  // namespace norvik::desktop
