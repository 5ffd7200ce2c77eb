#include "random_operator.h"

#include "front/list_box.h"

#include <array>
#include <string_view>

namespace norvik::fuzz {

namespace {

constexpr std::array<std::string_view, 24> kWords{
    "",      "Smile", "head:1",    "neck", "skin",  "0",         "1",       "-1",
    "2.5",   "1e9",   "ALL",       "DONE", "a b",   "NONE",      "100",     ".5",
    "right", "left",  "C:\\x.cr2", "*",    "\t\tx", "actor x:1", "f.2.obj", "9"};

constexpr std::array<std::string_view, 10> kKeys{"Enter", "Escape",  "Space", "Delete", "F3",
                                                 "Tab",   "Ctrl+F1", "a",     "7",      "F1"};

/// The name by which a script speaks of a control.
std::string nameOf(const front::Form& form, const front::Control& control) {
  return form.name() == "Opening" ? control.name() : form.name() + "." + control.name();
}

}  // namespace

std::size_t RandomOperator::draw(std::size_t count) {
  if (done() || count == 0) return 0;
  std::size_t value = bytes_[at_++];
  if (count > 256 && !done()) value = value * 256 + bytes_[at_++];
  return value % count;
}

std::string RandomOperator::file() {
  return files_[draw(files_.size())];
}

std::string RandomOperator::word() {
  return std::string{kWords[draw(kWords.size())]};
}

void RandomOperator::answerAhead(std::vector<std::string>& lines) {
  // Mostly what leads on: an operator who mostly refuses sees little of the program.
  constexpr std::array<std::string_view, 8> kAnswers{"Yes", "Yes", "Yes", "OK",
                                                     "OK",  "Yes", "No",  "Cancel"};
  lines.emplace_back(kForgetAnswers);
  const std::size_t boxes = draw(256);
  for (const std::size_t shift : {0U, 3U, 5U}) {
    lines.push_back("answer " + std::string{kAnswers[(boxes >> shift) % kAnswers.size()]});
  }
  const std::size_t dialogs = draw(8);
  if (dialogs == 0) {
    lines.emplace_back("cancel");
    return;
  }
  lines.push_back("choose " + file());
  if (dialogs > 4) lines.push_back("choose " + file());
  lines.emplace_back("colour 10 20 30");
  lines.emplace_back("accept");
}

std::string RandomOperator::actAt(const front::Control& control, const std::string& name,
                                  const std::vector<std::string>& names) {
  using Kind = front::ControlKind;
  const auto pixels = [this] {
    return " " + std::to_string(draw(256) * 2) + " " + std::to_string(draw(256) * 2);
  };
  switch (control.kind()) {
    case Kind::listBox:
    case Kind::fileList: {
      const auto& list = dynamic_cast<const front::ListBox&>(control);
      const std::size_t act = draw(8);
      if (list.count() == 0 || act == 0) return "click " + name;
      const std::size_t index = draw(list.items().size());
      if (list.hasTicks()) {
        return "tick " + name + " " + std::to_string(index) + (act % 2 == 0 ? " on" : " off");
      }
      if (act == 1) return "double-click-item " + name + " " + list.items()[index];
      if (act == 2) return "drop " + name + " " + names[draw(names.size())];
      if (act == 3) return "right-click " + name;
      if (act == 4) return "key " + name + " " + std::string{kKeys[draw(kKeys.size())]};
      if (act == 5 && list.multiple()) {
        return "select " + name + " 0 " + std::to_string(index);
      }
      return "select " + name + " " + std::to_string(index);
    }
    case Kind::textBox:
    case Kind::richTextBox:
    case Kind::comboBox: {
      const std::size_t act = draw(4);
      if (act == 0) return "key " + name + " " + std::string{kKeys[draw(kKeys.size())]};
      if (act == 1) return "key " + name + " Enter";
      if (act == 2) return "caret " + name + " " + std::to_string(draw(40)) + " 1";
      return "type " + name + " " + word();
    }
    case Kind::folderList:
      return "type " + name + " C:\\";
    case Kind::driveList:
      return "type " + name + " C:";
    case Kind::slider:
    case Kind::scrollBar:
      return "set " + name + " " + std::to_string(draw(200));
    case Kind::timer:
      return "timer " + name;
    case Kind::drawingSurface:
    case Kind::pictureButton:
    case Kind::image: {
      const std::size_t act = draw(16);
      if (act == 0) return "right-click " + name;
      if (act == 1) return "drop-file " + file() + " " + name;
      if (act == 2) return "press " + name + pixels();
      if (act == 3) return "release " + name + pixels();
      if (act == 4) return "drag " + name + pixels();
      return "click " + name;
    }
    default: {
      const std::size_t act = draw(16);
      if (act == 0) return "double-click " + name;
      if (act == 1) return "right-click " + name;
      if (act == 2) return "drop-file " + file() + " " + name;
      return "click " + name;
    }
  }
}

std::vector<std::string> RandomOperator::next(const front::Session& session,
                                              const headless::ScriptFrontEnd& front) {
  std::vector<const front::Control*> inReach;
  std::vector<std::string> names;
  const front::Form* top = nullptr;
  for (const front::Form* form : session.forms()) {
    if (!form->loaded()) continue;
    if (front.modalForm() != nullptr && front.modalForm() != form) continue;
    top = form;
    for (const front::Control* control : form->controls()) {
      if (!control->visible() || !control->reachable()) continue;
      // The exit and its animation end the run early.
      if (control->name() == "MenuFileExit") continue;
      inReach.push_back(control);
      names.push_back(nameOf(*form, *control));
    }
  }
  std::vector<std::string> lines;
  if (inReach.empty() || top == nullptr) return lines;
  answerAhead(lines);
  const std::size_t which = draw(inReach.size() + 2);
  if (which >= inReach.size()) {
    if (which == inReach.size() && top->name() != "Opening") {
      lines.push_back("close " + top->name());
    } else {
      lines.push_back("key " + top->name() + " " + std::string{kKeys[draw(kKeys.size())]});
    }
    return lines;
  }
  lines.push_back(actAt(*inReach[which], names[which], names));
  return lines;
}

}  // namespace norvik::fuzz
