#pragma once
// A line that may hold links.

#include <QLabel>

namespace norvik::desktop {

/// Its links are followed by mouse and by keyboard. Without one it is no place for the focus.
class LinkLine : public QLabel {
 public:
  explicit LinkLine(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setFocusPolicy(Qt::NoFocus);
  }

  void setLine(const QString& line) {
    const bool links = line.contains(QStringLiteral("<a "));
    setText(line);
    setFocusPolicy(links ? Qt::StrongFocus : Qt::NoFocus);
    if (!links && hasFocus()) clearFocus();
  }
};

}  // namespace norvik::desktop
