#include "headless/commands.h"

#include "headless/arguments.h"
#include "headless/control_state.h"
#include "text/columns.h"

#include <optional>
#include <utility>

namespace norvik::headless {

namespace {

/// Runs a step on the disk or the settings that the script itself asks for.
void orRefuse(const std::function<void()>& step) {
  try {
    step();
  } catch (const text::FileError& error) {
    throw Refused{std::string{error.text()}};
  }
}

struct CaretPlace {
  std::size_t position;
  std::size_t length;
};

/// Takes "POS" or "POS LEN" off the line, in a text of that size.
CaretPlace caretPlace(ScriptLine& line, std::size_t textSize) {
  const int size = static_cast<int>(textSize);
  const int position = within(wholeNumber(line.word()), 0, size);
  const int length = line.hasMore() ? within(wholeNumber(line.word()), 0, size - position) : 0;
  return {static_cast<std::size_t>(position), static_cast<std::size_t>(length)};
}

}  // namespace

Commands::Commands(workbench::Workbench& workbench, ScriptFrontEnd& front, Transcript& transcript,
                   Outcome& outcome, text::HostOps& host)
    : workbench_(workbench),
      session_(workbench.session()),
      front_(front),
      transcript_(transcript),
      outcome_(outcome),
      host_(host),
      acts_(session_) {
  addAnswers();
  addProgram();
  addMouse();
  addLists();
  addInput();
  addInner();
  addDisk();
  addHistory();
  addOutput();
}

void Commands::run(ScriptLine line) {
  try {
    const std::string name = line.word();
    const auto command = commands_.find(name);
    if (command == commands_.end()) throw Refused{"no command '" + name + "'"};
    const auto& [mostWords, carryOut] = command->second;
    // A slip of the pen must not pass for the command that it is most like.
    if (mostWords != kAny && line.wordsLeft() > mostWords) {
      throw Refused{"more words than " + name + " takes"};
    }
    carryOut(line);
  } catch (const Refused& refused) {
    outcome_.refused = true;
    transcript_.print(JsonObject("refused").number("line", line.number()).text("why", refused.why));
  }
}

front::Control& Commands::find(const std::string& name) {
  const auto dot = name.find('.');
  front::Form* form =
      dot == std::string::npos ? &session_.opening : session_.findForm(name.substr(0, dot));
  const std::string bare = dot == std::string::npos ? name : name.substr(dot + 1);
  front::Control* control = form == nullptr ? nullptr : form->find(bare);
  if (control == nullptr) throw Refused{"no control '" + name + "'"};
  if (!form->loaded()) throw Refused{"the form " + form->name() + " is not loaded"};
  return *control;
}

void Commands::requireInFront(const front::Form& form) const {
  const front::Form* modal = front_.modalForm();
  if (modal != nullptr && modal != &form) throw Refused{"the form " + modal->name() + " waits"};
}

front::Control& Commands::reach(const std::string& name) {
  front::Control& control = find(name);
  requireInFront(control.form());
  if (!control.visible()) throw Refused{control.name() + " is hidden"};
  if (!control.reachable()) throw Refused{control.name() + " is disabled"};
  return control;
}

template <typename Kind>
Kind& Commands::reachAs(const std::string& name, const char* kind) {
  auto* control = dynamic_cast<Kind*>(&reach(name));
  if (control == nullptr) throw Refused{name + " is no " + kind};
  return *control;
}

front::Form& Commands::reachForm(const std::string& name) {
  front::Form& form = loadedForm(name);
  requireInFront(form);
  return form;
}

front::Form& Commands::loadedForm(const std::string& name) {
  front::Form* form = session_.findForm(name);
  if (form == nullptr) throw Refused{"no form '" + name + "'"};
  if (!form->loaded()) throw Refused{"the form " + form->name() + " is not loaded"};
  return *form;
}

/// The first item that equals a text or, if none does, holds it.
int Commands::itemIndex(front::ListBox& list, const std::string& text) {
  std::optional<int> holding;
  for (int i = 0; i < list.count(); ++i) {
    if (list.item(i) == text) return i;
    if (!holding && text::holds(list.item(i), text)) holding = i;
  }
  if (!holding) throw Refused{"no item '" + text + "' in " + list.name()};
  return *holding;
}

front::ListBox& Commands::selectItem(ScriptLine& line) {
  auto& list = reachAs<front::ListBox>(line.word(), "list box");
  acts_.select(list, {itemIndex(list, line.rest())});
  return list;
}

void Commands::add(const char* name, int mostWords, std::function<void(ScriptLine&)> carryOut) {
  commands_[name] = {mostWords, std::move(carryOut)};
}

void Commands::addAnswers() {
  add("answer", 1,
      [this](ScriptLine& line) { front_.answers().queueBox(answerNamed(line.word())); });
  add("choose", kAny, [this](ScriptLine& line) {
    front_.answers().queueDialog({DialogAnswer::Kind::file, line.rest()});
  });
  add("cancel", 0, [this](ScriptLine&) { front_.answers().queueDialog({}); });
  add("accept", 0,
      [this](ScriptLine&) { front_.answers().queueDialog({DialogAnswer::Kind::print}); });
  add("colour", 3, [this](ScriptLine& line) {
    constexpr int kMost = 255;
    const auto part = [&line] {
      return static_cast<unsigned>(within(wholeNumber(line.word()), 0, kMost));
    };
    const unsigned red = part();
    const unsigned green = part();
    const unsigned blue = part();
    front_.answers().queueDialog(
        {DialogAnswer::Kind::colour, {}, front::colourOf(red, green, blue)});
  });
}

void Commands::addProgram() {
  const auto unload = [this](front::Form& form) {
    session_.deliver(form.name(), [&] { session_.unload(form); });
  };
  add("start", 0, [this](ScriptLine&) {
    if (session_.opening.loaded()) throw Refused{"the program has started"};
    workbench_.start();
  });
  add("exit", 0, [this, unload](ScriptLine&) {
    // Also a program that never started ends by its exit steps.
    session_.opening.setLoaded(true);
    unload(session_.opening);
  });
  add("load", 1, [this](ScriptLine& line) {
    const std::string name = line.word();
    front::Form* form = session_.findForm(name);
    if (form == nullptr) throw Refused{"no form '" + name + "'"};
    if (form == &session_.opening) throw Refused{"the main form is loaded by start"};
    if (form->loaded()) throw Refused{"the form " + form->name() + " is loaded"};
    session_.deliver(form->name(), [&] { session_.load(*form); });
  });
  add("close", 1, [this, unload](ScriptLine& line) { unload(reachForm(line.word())); });
  add("frames", 1, [this](ScriptLine& line) {
    constexpr int kMost = 1'000'000;
    front_.setFrames(within(wholeNumber(line.word()), 1, kMost));
  });
  add("timer", 1, [this](ScriptLine& line) {
    auto* timer = dynamic_cast<front::Timer*>(&find(line.word()));
    if (timer == nullptr) throw Refused{"not a timer"};
    acts_.expire(*timer);
  });
}

void Commands::addMouse() {
  add("click", 1, [this](ScriptLine& line) { acts_.click(reach(line.word())); });
  add("right-click", 1, [this](ScriptLine& line) {
    const std::string name = line.word();
    if (session_.findForm(name) != nullptr) {
      acts_.rightClick(reachForm(name));
    } else {
      acts_.rightClick(reach(name));
    }
  });
  add("double-click", 1, [this](ScriptLine& line) { acts_.doubleClick(reach(line.word())); });
  add("hover", 1, [this](ScriptLine& line) { acts_.hover(reach(line.word())); });
  add("press", 4, [this](ScriptLine& line) {
    front::Control& control = reach(line.word());
    acts_.press(control, mouseAt(line));
  });
  add("drag", 4, [this](ScriptLine& line) {
    front::Control& control = reach(line.word());
    acts_.move(control, mouseAt(line));
  });
  add("release", 4, [this](ScriptLine& line) {
    front::Control& control = reach(line.word());
    acts_.release(control, mouseAt(line));
  });
  add("drop", 2, [this](ScriptLine& line) {
    front::Control& from = reach(line.word());
    acts_.drop(from, reach(line.word()));
  });
  add("drop-file", kAny, [this](ScriptLine& line) {
    front::Control& onto = reach(line.lastWord());
    const std::vector<std::string> paths = text::parts(line.rest(), '|');
    if (paths.empty()) throw Refused{"no file"};
    acts_.dropFiles(paths, onto);
  });
}

void Commands::addLists() {
  add("select", kAny, [this](ScriptLine& line) {
    auto& list = reachAs<front::ListBox>(line.word(), "list box");
    std::vector<int> indexes;
    while (line.hasMore()) {
      indexes.push_back(within(wholeNumber(line.word()), 0, list.count() - 1));
    }
    acts_.select(list, indexes);
  });
  add("item", kAny, [this](ScriptLine& line) { selectItem(line); });
  add("shift-item", kAny, [this](ScriptLine& line) {
    auto& list = reachAs<front::ListBox>(line.word(), "list box");
    acts_.selectWithShift(list, itemIndex(list, line.rest()));
  });
  add("double-click-item", kAny, [this](ScriptLine& line) { acts_.doubleClick(selectItem(line)); });
  add("tick", 3, [this](ScriptLine& line) {
    auto& list = reachAs<front::ListBox>(line.word(), "list box");
    const int index = within(wholeNumber(line.word()), 0, list.count() - 1);
    acts_.tick(list, index, isOn(line.word()));
  });
}

void Commands::addInput() {
  add("type", kAny, [this](ScriptLine& line) { type(line); });
  add("key", 2, [this](ScriptLine& line) {
    const std::string name = line.word();
    const std::string key = line.word();
    if (key.empty()) throw Refused{"no key"};
    front::Form* form = session_.findForm(name);
    if (form != nullptr) {
      acts_.key(reachForm(name), key);
    } else {
      acts_.key(reach(name), key);
    }
  });
  add("set", 2, [this](ScriptLine& line) {
    auto& slider = reachAs<front::Slider>(line.word(), "slider");
    acts_.setSlider(slider, within(wholeNumber(line.word()), slider.least(), slider.most()));
  });
  add("caret", 3, [this](ScriptLine& line) {
    const std::string name = line.word();
    auto* pane = dynamic_cast<front::TextPane*>(&reach(name));
    if (pane != nullptr) {
      const CaretPlace place = caretPlace(line, pane->content().size());
      acts_.placeCaret(*pane, place.position, place.length);
    } else {
      auto& box = reachAs<front::TextBox>(name, "text control");
      const CaretPlace place = caretPlace(line, box.text().size());
      acts_.placeCaret(box, place.position, place.length);
    }
  });
}

void Commands::type(ScriptLine& line) {
  front::Control& control = reach(line.word());
  const std::string text = line.rest();
  if (auto* folders = dynamic_cast<front::FolderList*>(&control); folders != nullptr) {
    if (!acts_.walk(*folders, text)) throw Refused{"no folder '" + text + "'"};
  } else if (auto* drives = dynamic_cast<front::DriveList*>(&control); drives != nullptr) {
    if (!acts_.pick(*drives, text)) throw Refused{"no drive '" + text + "'"};
  } else if (auto* box = dynamic_cast<front::TextBox*>(&control); box != nullptr) {
    acts_.type(*box, text);
  } else if (auto* pane = dynamic_cast<front::TextPane*>(&control); pane != nullptr) {
    acts_.type(*pane, text);
  } else {
    throw Refused{control.name() + " is no text control"};
  }
}

/// What a script says to the program itself, past its controls.
void Commands::addInner() {
  add("mode", 1, [this](ScriptLine& line) { session_.opening.Mode = wholeNumber(line.word()); });
  add("call", 1, [this](ScriptLine& line) {
    const std::string name = line.word();
    const auto routine = session_.callable.find(name);
    if (routine == session_.callable.end()) throw Refused{"no routine '" + name + "'"};
    session_.deliver(name, routine->second);
  });
  add("put", kAny, [this](ScriptLine& line) {
    front::Control& control = find(line.word());
    const std::string property = line.word();
    if (!putProperty(control, property, line.rest())) {
      throw Refused{control.name() + " has no property '" + property + "'"};
    }
  });
}

void Commands::addDisk() {
  add("setting", kAny, [this](ScriptLine& line) {
    const std::string section = line.word();
    const std::string key = line.word();
    if (key.empty()) throw Refused{"no key"};
    // The store's file could not give it back.
    const bool writable = key.find_first_of("=;#[") == std::string::npos;
    if (!writable) throw Refused{"'" + key + "' is no key"};
    orRefuse([&] { session_.settings.set(section, key, line.rest()); });
  });
  add("attribute", kAny, [this](ScriptLine& line) {
    const std::string attribute = line.lastWord();
    if (attribute != "read-only" && attribute != "normal") {
      throw Refused{"'" + attribute + "' is neither read-only nor normal"};
    }
    const std::string path = line.rest();
    orRefuse([&] { session_.disk.setReadOnly(path, attribute == "read-only"); });
  });
  add("chdir", kAny,
      [this](ScriptLine& line) { orRefuse([&] { session_.disk.changeFolder(line.rest()); }); });
}

}  // namespace norvik::headless
