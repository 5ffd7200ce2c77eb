#include "front/control.h"

#include "front/form.h"

namespace norvik::front {

namespace {

constexpr float kFontPoints = 8.25F;

}  // namespace

std::string_view kindName(ControlKind kind) {
  switch (kind) {
    case ControlKind::listBox:
      return "list box";
    case ControlKind::label:
      return "label";
    case ControlKind::textBox:
      return "text box";
    case ControlKind::richTextBox:
      return "rich text box";
    case ControlKind::comboBox:
      return "combo box";
    case ControlKind::pictureButton:
      return "picture button";
    case ControlKind::optionButton:
      return "option button";
    case ControlKind::checkBox:
      return "check box";
    case ControlKind::commandButton:
      return "command button";
    case ControlKind::slider:
      return "slider";
    case ControlKind::scrollBar:
      return "scroll bar";
    case ControlKind::timer:
      return "timer";
    case ControlKind::menuEntry:
      return "menu entry";
    case ControlKind::frame:
      return "frame";
    case ControlKind::shape:
      return "shape";
    case ControlKind::image:
      return "image";
    case ControlKind::drawingSurface:
      return "drawing surface";
    case ControlKind::folderList:
      return "folder list";
    case ControlKind::driveList:
      return "drive list";
    case ControlKind::fileList:
      return "file list";
  }
  return "control";
}

Control::Control(Form& form, std::string_view name, ControlKind kind)
    : form_(form), name_(name), kind_(kind), fontSize_(kFontPoints) {
  form.add(*this);
}

void Control::setBox(const Box& box) {
  box_ = box;
  touch();
}

void Control::touch() {
  if (changed_) return;
  changed_ = true;
  form_.noteChange(*this);
}

}  // namespace norvik::front
