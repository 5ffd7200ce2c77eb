#pragma once
// List boxes on the screen.

#include "desktop/bind/list_view.h"
#include "desktop/bind/widget_binding.h"

namespace norvik::desktop {

/// A list box and its view. The mouse selects and clicks as in any list; the arrow keys and typed
/// letters select alone, Space clicks and Enter double-clicks, since a click can start a tool.
class ListBinding : public WidgetBinding {
 public:
  ListBinding(Dispatcher& dispatcher, front::ListBox& list, ListView& view);

 protected:
  void refresh() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showSelection();
  void takeSelection(const QItemSelection& selected, const QItemSelection& deselected);
  void press(const QMouseEvent& event);
  void release(const QMouseEvent& event);
  bool key(const QKeyEvent& event);
  bool tickAt(const QMouseEvent& event);
  void tick(int item);
  void filter(const QString& text);
  void deselectHidden();
  QString dragCaption() const;

  front::ListBox& list_;
  ListView& view_;
  ListModel model_;
};

}  // namespace norvik::desktop
