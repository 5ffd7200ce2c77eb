#pragma once
// The views of the mesh workshop, one on another.

#include "desktop/desktop_front_end.h"
#include "desktop/maker.h"
#include "front/form_obj.h"

#include <QFrame>

#include <array>
#include <memory>
#include <vector>

class QLabel;

namespace norvik::desktop {

class GlView;

/// Holds a widget for each picture of the form, all in the same place; the tools say which is seen.
/// It keeps the keys while a mesh is looked at, whatever view is on top, and says what to do while
/// there is none.
class ViewStack : public QFrame {
 public:
  ViewStack(Maker& maker, front::FormOBJ& form, DesktopFrontEnd& frontEnd, QWidget* parent);

  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void addView(QWidget& view);
  QWidget& make3DView(Maker& maker, front::PictureBox& picture, DesktopFrontEnd& frontEnd);
  void place();
  bool moveByKey(const QKeyEvent& event);
  void tellWhatToDo();
  void showMark();

  front::FormOBJ& form_;
  QWidget* view3D_ = nullptr;
  QLabel* hint_ = nullptr;
  GlView* space_ = nullptr;  ///< null on a desktop without three dimensions
  std::array<SurfaceView*, 3> flat_{};
  std::shared_ptr<const front::MeshMark> mark_;  ///< that is seen
  std::vector<QWidget*> views_;
};

}  // namespace norvik::desktop
