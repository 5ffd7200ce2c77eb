#include "desktop/bind/shape_binding.h"

#include <QFrame>

namespace norvik::desktop {

ShapeBinding::ShapeBinding(Dispatcher& dispatcher, front::Shape& shape, QFrame& frame)
    : Binding(dispatcher, shape), frame_(frame), drawn_(frame.frameStyle()) {
  frame.setObjectName(QString::fromStdString(shape.name()));
}

void ShapeBinding::refresh() {
  frame_.setFrameStyle(control().visible() ? drawn_ : QFrame::NoFrame);
}

}  // namespace norvik::desktop
