#include "headless/operator_acts.h"

namespace norvik::headless {

namespace {

using front::Mouse;
using front::MouseButton;

}  // namespace

void OperatorActs::choose(front::MenuEntry& entry) {
  std::vector<front::MenuEntry*> menus;
  for (front::MenuEntry* menu = entry.above(); menu != nullptr; menu = menu->above()) {
    menus.insert(menus.begin(), menu);
  }
  for (front::MenuEntry* menu : menus) deliver(menu->opened);
  // An entry with a menu of its own unfolds it.
  deliver(entry.opened);
  deliver(entry.clicked);
}

void OperatorActs::click(front::Control& control) {
  if (auto* entry = dynamic_cast<front::MenuEntry*>(&control)) return choose(*entry);
  if (dynamic_cast<front::ListBox*>(&control) == nullptr) deliver(control.pressed, Mouse{});
  deliver(control.released, Mouse{});
  if (auto* option = dynamic_cast<front::OptionButton*>(&control)) option->setValue(true);
  if (auto* check = dynamic_cast<front::CheckBox*>(&control)) check->setValue(!check->value());
  deliver(control.clicked);
}

void OperatorActs::rightClick(front::Control& control) {
  deliver(control.pressed, Mouse{MouseButton::right});
  deliver(control.released, Mouse{MouseButton::right});
}

void OperatorActs::rightClick(front::Form& form) {
  deliver(form.released, Mouse{MouseButton::right});
}

void OperatorActs::doubleClick(front::Control& control) {
  deliver(control.doubleClicked);
}

void OperatorActs::select(front::ListBox& list, const std::vector<int>& indexes) {
  list.clearSelection();
  for (const int index : indexes) list.choose(index);
  if (!indexes.empty()) deliver(list.clicked);
}

void OperatorActs::selectWithShift(front::ListBox& list, int index) {
  list.setShiftHeld(true);
  select(list, {index});
  list.setShiftHeld(false);
}

void OperatorActs::tick(front::ListBox& list, int index, bool on) {
  list.setTicked(index, on);
  deliver(list.tickChanged, index);
}

void OperatorActs::drop(front::Control& from, front::Control& onto) {
  deliver(from.pressed, Mouse{});
  if (from.dragging()) deliver(onto.dropped, from);
}

void OperatorActs::dropFiles(const std::vector<std::string>& paths, front::Control& onto) {
  deliver(onto.filesDropped, paths);
}

void OperatorActs::type(front::TextBox& box, const std::string& text) {
  box.setText(text);
  box.setCaret(0, 0);
  deliver(box.changed);
}

void OperatorActs::type(front::TextPane& pane, const std::string& text) {
  pane.setContent(text::LongText(text));
  deliver(pane.changed);
}

bool OperatorActs::walk(front::FolderList& folders, const std::string& path) {
  if (!front::walkTo(session_.disk, folders, path)) return false;
  deliver(folders.changed);
  return true;
}

bool OperatorActs::pick(front::DriveList& drives, const std::string& drive) {
  if (!front::pickDrive(session_.disk, drives, drive)) return false;
  deliver(drives.changed);
  if (drives.folders() != nullptr) deliver(drives.folders()->changed);
  return true;
}

void OperatorActs::key(front::Control& control, const std::string& key) {
  deliver(control.key, key);
}

void OperatorActs::key(front::Form& form, const std::string& key) {
  deliver(form.key, key);
}

void OperatorActs::setSlider(front::Slider& slider, int value) {
  slider.setValue(value);
  deliver(slider.changed);
}

void OperatorActs::placeCaret(front::TextBox& box, std::size_t position, std::size_t length) {
  box.setCaret(position, length);
  deliver(box.caretMoved);
}

void OperatorActs::placeCaret(front::TextPane& pane, std::size_t position, std::size_t length) {
  pane.setCaret(position, length);
  deliver(pane.caretMoved);
}

void OperatorActs::press(front::Control& control, Mouse mouse) {
  deliver(control.pressed, mouse);
}
void OperatorActs::move(front::Control& control, Mouse mouse) {
  deliver(control.moved, mouse);
}
void OperatorActs::release(front::Control& control, Mouse mouse) {
  deliver(control.released, mouse);
}
void OperatorActs::hover(front::Control& control) {
  deliver(control.moved, Mouse{MouseButton::none});
}

void OperatorActs::expire(front::Timer& timer) {
  if (timer.running()) deliver(timer.expired);
}

}  // namespace norvik::headless
