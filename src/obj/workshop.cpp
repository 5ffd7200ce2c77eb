#include "obj/workshop.h"

namespace norvik::obj {

Workshop::Workshop(front::Session& theSession, front::FormOBJ& theForm)
    : session(theSession), form(theForm) {}

ViewMode Workshop::chosenView() const {
  if (form.OptionSideView.value()) return ViewMode::side;
  return form.OptionTopView.value() ? ViewMode::top : ViewMode::front;
}

front::PictureBox& Workshop::flatView(ViewMode mode) {
  return *form.flatViews().at(static_cast<std::size_t>(mode) - 1);
}

}  // namespace norvik::obj
