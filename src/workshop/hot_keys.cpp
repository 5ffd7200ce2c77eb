#include "workshop/hot_keys.h"

namespace norvik::obj {

void wireHotKeyList(Workshop& workshop) {
  front::ListBox& list = workshop.form.ListHotKeys;
  workshop.form.LabelHotKeys.clicked.add([&list] {
    constexpr float kWidth = 164;
    list.setWidth(kWidth);
    list.show();
  });
  list.released.add([&list](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::right) list.hide();
  });
}

}  // namespace norvik::obj
