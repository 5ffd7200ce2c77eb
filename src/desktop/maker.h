#pragma once
// Widgets for controls.

#include "desktop/bind/binding.h"
#include "desktop/bind/list_view.h"
#include "desktop/bind/surface_view.h"
#include "desktop/bind/widget_binding.h"
#include "front/choice_controls.h"
#include "front/file_lists.h"
#include "front/list_box.h"
#include "front/picture_box.h"
#include "front/plain_controls.h"
#include "front/text_controls.h"
#include "front/text_pane.h"
#include "front/timer.h"

#include <initializer_list>

class QAbstractButton;
class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QToolButton;

namespace norvik::desktop {

class PageView;

/// Makes the widget that draws a control and binds the two. A widget belongs to its parent.
class Maker {
 public:
  Maker(Dispatcher& dispatcher, Bindings& bindings)
      : dispatcher_(dispatcher), bindings_(bindings) {}

  Dispatcher& dispatcher() const { return dispatcher_; }
  Bindings& bindings() const { return bindings_; }

  /// A control of any kind but timers and menus; null for those.
  QWidget* make(front::Control& control, QWidget& parent);

  ListView& list(front::ListBox& list, QWidget& parent);
  QListWidget& folders(front::FolderList& folders, QWidget& parent);
  QComboBox& drives(front::DriveList& drives, QWidget& parent);
  QLabel& label(front::Label& label, QWidget& parent);
  /// A label for a path, which gives way to a narrow window.
  QLabel& pathLabel(front::Label& label, QWidget& parent);
  QLineEdit& line(front::TextBox& box, QWidget& parent);
  PageView& page(front::TextPane& pane, QWidget& parent);
  QGroupBox& frame(front::Frame& frame, QWidget& parent);
  /// A picture button, or a label that is one, with its icon and name.
  QToolButton& picture(front::Control& picture, QWidget& parent, int iconSize);
  /// A picture button that shows its own colour.
  QAbstractButton& swatch(front::Control& picture, QWidget& parent);
  /// A drawing surface, with its name for those who listen.
  SurfaceView& surface(front::PictureBox& picture, QWidget& parent);
  void shape(front::Shape& shape, QFrame& frame);
  /// An image that covers its parent with a picture of the program's own.
  void cover(front::Image& image, QWidget& parent, const QString& picture);
  void timer(front::Timer& timer);

  /// Calls back whenever one of the controls changed, and once at once.
  void watch(std::initializer_list<front::Control*> controls, std::function<void()> callback);
  /// Shows a widget while any of the controls is visible.
  void showWhileAny(QWidget& widget, std::initializer_list<front::Control*> controls);

 private:
  Dispatcher& dispatcher_;
  Bindings& bindings_;
};

}  // namespace norvik::desktop
