#pragma once
// FormViewer laid out: the map with zoom, and its size.

#include "desktop/forms/form_windows.h"
#include "desktop/forms/map_view.h"
#include "tools/form_viewer.h"

#include <cstdint>

class QLabel;
class QPushButton;

namespace norvik::desktop {

/// The window has scroll bars of its own, which follow its size and zoom.
class ViewerWindow : public FormWindow {
 public:
  ViewerWindow(const WindowParts& parts, tools::FormViewer& form);

 private:
  QLayout* makeTools();
  QPushButton* addButton(QLayout& row, const QString& text, const QString& tip,
                         std::function<void()> act);
  void showPicture();
  void showState();

  front::Session& session_;
  tools::FormViewer& form_;
  MapView* map_;
  QLabel* state_ = nullptr;
  std::uint64_t shown_ = 0;
};

}  // namespace norvik::desktop
