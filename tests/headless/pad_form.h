#pragma once
// A form with one control of each kind that writes down all that happens at it.

#include "front/choice_controls.h"
#include "front/file_lists.h"
#include "front/form.h"
#include "front/list_box.h"
#include "front/menu_entry.h"
#include "front/picture_box.h"
#include "front/plain_controls.h"
#include "front/rich_text.h"
#include "front/timer.h"

#include <string>
#include <utility>
#include <vector>

namespace norvik::headless {

struct PadForm : front::Form {
  PadForm() : Form("Pad", "Pad") {
    for (front::Control* control : controls()) note(*control);
    for (front::ListBox* list : {&ListPad, &ListOne}) {
      list->tickChanged.add([this, list](int index) {
        log.push_back(list->name() + " tick " + std::to_string(index) +
                      (list->ticked(index) ? " on" : " off"));
      });
    }
    for (front::TextBox* box : {&TextPad, static_cast<front::TextBox*>(&RichPad),
                                static_cast<front::TextBox*>(&ComboPad)}) {
      box->changed.add([this, box] { log.push_back(box->name() + " is " + box->text()); });
      box->caretMoved.add([this, box] {
        log.push_back(box->name() + " caret " + std::to_string(box->caret()) + "+" +
                      std::to_string(box->selectionLength()));
      });
    }
    SliderPad.changed.add(
        [this] { log.push_back("slid to " + std::to_string(SliderPad.value())); });
    FoldersPad.changed.add([this] { log.push_back("walked to " + FoldersPad.path()); });
    DrivesPad.changed.add([this] { log.push_back("picked " + DrivesPad.path()); });
    TimerPad.expired.add([this] { log.push_back("expired"); });
    MenuPad.opened.add([this] { log.push_back("MenuPad opened"); });
    MenuInner.opened.add([this] { log.push_back("MenuInner opened"); });
    MenuLeaf.opened.add([this] { log.push_back("MenuLeaf opened"); });
    key.add([this](const std::string& name) { log.push_back("form key " + name); });
    unloading.add([this] { log.push_back("unloading"); });
  }

  std::vector<std::string> takeLog() { return std::exchange(log, {}); }

  front::Label LabelPad{*this, "LabelPad", "a label"};
  front::ListBox ListPad{*this, "ListPad", front::Selection::multiple};
  front::ListBox ListOne{*this, "ListOne"};
  front::TextBox TextPad{*this, "TextPad"};
  front::RichTextBox RichPad{*this, "RichPad"};
  front::ComboBox ComboPad{*this, "ComboPad"};
  front::Frame FramePad{*this, "FramePad"};
  front::OptionButton OptionA{*this, "OptionA", "A", &FramePad};
  front::OptionButton OptionB{*this, "OptionB", "B", &FramePad};
  front::OptionButton OptionOutside{*this, "OptionOutside", "C"};
  front::CheckBox CheckPad{*this, "CheckPad", "D"};
  front::Slider SliderPad{*this, "SliderPad", -5, 5};
  front::PictureButton PicturePad{*this, "PicturePad"};
  front::PictureBox CanvasPad{*this, "CanvasPad", 4, 3};
  front::CommandButton CommandPad{*this, "CommandPad", "Go"};
  front::FolderList FoldersPad{*this, "FoldersPad"};
  front::DriveList DrivesPad{*this, "DrivesPad", &FoldersPad};
  front::FileList FilesPad{*this, "FilesPad", "*.cr2"};
  front::ListBox ListTicks{*this, "ListTicks", front::Selection::ticks};
  front::Timer TimerPad{*this, "TimerPad", 250};
  front::MenuEntry MenuPad{*this, "MenuPad", "Menu"};
  front::MenuEntry MenuInner{MenuPad, "MenuInner", "Inner"};
  front::MenuEntry MenuLeaf{MenuInner, "MenuLeaf", "Leaf"};

  std::vector<std::string> log;

 private:
  void note(front::Control& control) {
    const std::string& name = control.name();
    const auto mouse = [this, name](const char* what) {
      return [this, name, what](front::Mouse at) {
        log.push_back(name + " " + what + " " + std::to_string(at.x) + "," + std::to_string(at.y) +
                      (at.button == front::MouseButton::right  ? " right"
                       : at.button == front::MouseButton::none ? " free"
                                                               : ""));
      };
    };
    control.pressed.add(mouse("press"));
    control.moved.add(mouse("move"));
    control.released.add(mouse("release"));
    control.clicked.add([this, name] { log.push_back(name + " click"); });
    control.doubleClicked.add([this, name] { log.push_back(name + " double"); });
    control.dropped.add(
        [this, name](front::Control& from) { log.push_back(name + " gets " + from.name()); });
    control.filesDropped.add([this, name](const std::vector<std::string>& paths) {
      for (const std::string& path : paths) log.push_back(name + " gets file " + path);
    });
    control.key.add([this, name](const std::string& pressedKey) {
      log.push_back(name + " key " + pressedKey);
    });
  }
};

}  // namespace norvik::headless
