#include "desktop/window/headings.h"

#include <QFont>
#include <QLabel>

namespace norvik::desktop {

void makeHeading(QLabel& label) {
  QFont font = label.font();
  font.setWeight(QFont::DemiBold);
  label.setFont(font);
}

QLabel* makePaneTitle(const char* title, QWidget& parent) {
  auto* label = new QLabel(QString::fromLatin1(title), &parent);
  label->setObjectName(QString::fromLatin1(title) + QStringLiteral("Title"));
  label->setForegroundRole(QPalette::PlaceholderText);
  label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  return label;
}

void makeFileHeading(QLabel& label, const QString& accessibleName) {
  QFont font = label.font();
  font.setWeight(QFont::DemiBold);
  font.setPointSizeF(font.pointSizeF() * 1.05);
  label.setFont(font);
  label.setAccessibleName(accessibleName);
  label.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

}  // namespace norvik::desktop
