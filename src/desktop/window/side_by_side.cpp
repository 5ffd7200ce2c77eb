#include "desktop/window/side_by_side.h"

#include "desktop/window/headings.h"

#include <QLabel>

namespace norvik::desktop {

QVBoxLayout& laySideBySide(Maker& maker, front::Label& hint, QWidget& window,
                           std::initializer_list<std::pair<QLayout*, int>> parts) {
  auto* column = new QVBoxLayout(&window);
  column->setSpacing(kPaneMargin);
  QLabel& words = maker.label(hint, window);
  words.setWordWrap(true);
  column->addWidget(&words);
  auto* sides = new QHBoxLayout;
  sides->setSpacing(2 * kPaneMargin);
  for (const auto& [part, share] : parts) sides->addLayout(part, share);
  column->addLayout(sides, 1);
  return *column;
}

}  // namespace norvik::desktop
