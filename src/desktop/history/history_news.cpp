#include "desktop/history/history_news.h"

#include "desktop/link_line.h"

namespace norvik::desktop {

LinkLine* makeHistoryNews(QWidget& parent) {
  auto* news = new LinkLine(&parent);
  news->setObjectName(QString::fromLatin1(kHistoryNews));
  news->setAccessibleName(QStringLiteral("What was replaced last"));
  return news;
}

}  // namespace norvik::desktop
