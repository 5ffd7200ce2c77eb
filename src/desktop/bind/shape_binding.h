#pragma once
// Shapes: the frames and rules around other controls.

#include "desktop/bind/binding.h"
#include "front/plain_controls.h"

class QFrame;

namespace norvik::desktop {

/// Draws or drops a frame. What stands inside it has its own say about being seen.
class ShapeBinding : public Binding {
 public:
  ShapeBinding(Dispatcher& dispatcher, front::Shape& shape, QFrame& frame);

 protected:
  void refresh() override;

 private:
  QFrame& frame_;
  int drawn_;
};

}  // namespace norvik::desktop
