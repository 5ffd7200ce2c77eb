#include "headless/commands.h"

#include "front/picture_box.h"
#include "graphics/bmp.h"
#include "headless/control_state.h"
#include "text/columns.h"

#include <charconv>
#include <optional>

namespace norvik::headless {

namespace {

/// Why a command is not carried out; caught where the line is run.
struct Refused {
  std::string why;
};

int wholeNumber(const std::string& word) {
  int number = 0;
  const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
  if (word.empty() || result.ec != std::errc{} || result.ptr != word.data() + word.size()) {
    throw Refused{"'" + word + "' is no whole number"};
  }
  return number;
}

int within(int number, int least, int most) {
  if (number < least || number > most) {
    throw Refused{std::to_string(number) + " is not from " + std::to_string(least) + " to " +
                  std::to_string(most)};
  }
  return number;
}

bool isOn(const std::string& word) {
  if (word != "on" && word != "off") throw Refused{"'" + word + "' is neither on nor off"};
  return word == "on";
}

front::Answer answerNamed(const std::string& word) {
  static const std::map<std::string, front::Answer, std::less<>> answers{
      {"OK", front::Answer::ok},
      {"Cancel", front::Answer::cancel},
      {"Yes", front::Answer::yes},
      {"No", front::Answer::no}};
  const auto found = answers.find(word);
  if (found == answers.end()) throw Refused{"'" + word + "' is not OK, Cancel, Yes or No"};
  return found->second;
}

front::Mouse mouseAt(ScriptLine& line) {
  front::Mouse mouse;
  mouse.x = wholeNumber(line.word());
  mouse.y = wholeNumber(line.word());
  const std::string button = line.word();
  if (!button.empty() && button != "right") throw Refused{"'" + button + "' is not right"};
  if (button == "right") mouse.button = front::MouseButton::right;
  return mouse;
}

std::string nameOf(const front::Session& session, const front::Control& control) {
  const bool onMainForm = &control.form() == &session.opening;
  return onMainForm ? control.name() : control.form().name() + "." + control.name();
}

/// A slip of the pen must not pass for the command that it is most like: those that do not take the
/// rest of their line have no more words than these.
void refuseSurplus(const std::string& command, const ScriptLine& line) {
  static const std::map<std::string, int, std::less<>> mostWords{
      {"answer", 1},       {"cancel", 0},      {"colour", 3},  {"accept", 0},   {"start", 0},
      {"exit", 0},         {"click", 1},       {"hover", 1},   {"drop", 2},     {"tick", 3},
      {"double-click", 1}, {"right-click", 1}, {"key", 2},     {"set", 2},      {"caret", 3},
      {"press", 4},        {"drag", 4},        {"release", 4}, {"timer", 1},    {"frames", 1},
      {"load", 1},         {"close", 1},       {"show", 1},    {"show-form", 1}};
  const auto most = mostWords.find(command);
  if (most != mostWords.end() && line.wordsLeft() > most->second) {
    throw Refused{"more words than " + command + " takes"};
  }
}

/// Runs a step on the disk or the settings that the script itself asks for.
void orRefuse(const std::function<void()>& step) {
  try {
    step();
  } catch (const text::FileError& error) {
    throw Refused{std::string{error.text()}};
  }
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
  addDisk();
  addOutput();
}

void Commands::run(ScriptLine line) {
  try {
    const std::string name = line.word();
    const auto command = commands_.find(name);
    if (command == commands_.end()) throw Refused{"no command '" + name + "'"};
    refuseSurplus(name, line);
    command->second(line);
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

void Commands::addAnswers() {
  commands_["answer"] = [this](ScriptLine& line) {
    front_.answers().queueBox(answerNamed(line.word()));
  };
  commands_["choose"] = [this](ScriptLine& line) {
    front_.answers().queueDialog({DialogAnswer::Kind::file, line.rest()});
  };
  commands_["cancel"] = [this](ScriptLine&) { front_.answers().queueDialog({}); };
  commands_["accept"] = [this](ScriptLine&) {
    front_.answers().queueDialog({DialogAnswer::Kind::print});
  };
  commands_["colour"] = [this](ScriptLine& line) {
    constexpr int kMost = 255;
    const auto part = [&line] {
      return static_cast<unsigned>(within(wholeNumber(line.word()), 0, kMost));
    };
    const unsigned red = part();
    const unsigned green = part();
    const unsigned blue = part();
    front_.answers().queueDialog(
        {DialogAnswer::Kind::colour, {}, front::colourOf(red, green, blue)});
  };
}

void Commands::addProgram() {
  const auto unload = [this](front::Form& form) {
    session_.deliver([&] { session_.unload(form); });
  };
  commands_["start"] = [this](ScriptLine&) {
    if (session_.opening.loaded()) throw Refused{"the program has started"};
    workbench_.start();
  };
  commands_["exit"] = [this, unload](ScriptLine&) {
    // Also a program that never started ends by its exit steps.
    session_.opening.setLoaded(true);
    unload(session_.opening);
  };
  commands_["load"] = [this](ScriptLine& line) {
    const std::string name = line.word();
    front::Form* form = session_.findForm(name);
    if (form == nullptr) throw Refused{"no form '" + name + "'"};
    if (form == &session_.opening) throw Refused{"the main form is loaded by start"};
    if (form->loaded()) throw Refused{"the form " + form->name() + " is loaded"};
    session_.deliver([&] { session_.load(*form); });
  };
  commands_["close"] = [this, unload](ScriptLine& line) { unload(reachForm(line.word())); };
  commands_["frames"] = [this](ScriptLine& line) {
    constexpr int kMost = 1'000'000;
    front_.setFrames(within(wholeNumber(line.word()), 1, kMost));
  };
  commands_["timer"] = [this](ScriptLine& line) {
    auto* timer = dynamic_cast<front::Timer*>(&find(line.word()));
    if (timer == nullptr) throw Refused{"not a timer"};
    acts_.expire(*timer);
  };
}

void Commands::addMouse() {
  commands_["click"] = [this](ScriptLine& line) { acts_.click(reach(line.word())); };
  commands_["right-click"] = [this](ScriptLine& line) {
    const std::string name = line.word();
    if (session_.findForm(name) != nullptr) {
      acts_.rightClick(reachForm(name));
    } else {
      acts_.rightClick(reach(name));
    }
  };
  commands_["double-click"] = [this](ScriptLine& line) { acts_.doubleClick(reach(line.word())); };
  commands_["hover"] = [this](ScriptLine& line) { acts_.hover(reach(line.word())); };
  commands_["press"] = [this](ScriptLine& line) {
    front::Control& control = reach(line.word());
    acts_.press(control, mouseAt(line));
  };
  commands_["drag"] = [this](ScriptLine& line) {
    front::Control& control = reach(line.word());
    acts_.move(control, mouseAt(line));
  };
  commands_["release"] = [this](ScriptLine& line) {
    front::Control& control = reach(line.word());
    acts_.release(control, mouseAt(line));
  };
  commands_["drop"] = [this](ScriptLine& line) {
    front::Control& from = reach(line.word());
    acts_.drop(from, reach(line.word()));
  };
  commands_["drop-file"] = [this](ScriptLine& line) {
    front::Control& onto = reach(line.lastWord());
    const std::string path = line.rest();
    if (path.empty()) throw Refused{"no file"};
    acts_.dropFile(path, onto);
  };
}

void Commands::addLists() {
  commands_["select"] = [this](ScriptLine& line) {
    auto& list = reachAs<front::ListBox>(line.word(), "list box");
    std::vector<int> indexes;
    while (line.hasMore()) {
      indexes.push_back(within(wholeNumber(line.word()), 0, list.count() - 1));
    }
    acts_.select(list, indexes);
  };
  commands_["item"] = [this](ScriptLine& line) { selectItem(line); };
  commands_["double-click-item"] = [this](ScriptLine& line) {
    acts_.doubleClick(selectItem(line));
  };
  commands_["tick"] = [this](ScriptLine& line) {
    auto& list = reachAs<front::ListBox>(line.word(), "list box");
    const int index = within(wholeNumber(line.word()), 0, list.count() - 1);
    acts_.tick(list, index, isOn(line.word()));
  };
}

void Commands::addInput() {
  commands_["type"] = [this](ScriptLine& line) {
    auto& box = reachAs<front::TextBox>(line.word(), "text control");
    acts_.type(box, line.rest());
  };
  commands_["key"] = [this](ScriptLine& line) {
    const std::string name = line.word();
    const std::string key = line.word();
    if (key.empty()) throw Refused{"no key"};
    front::Form* form = session_.findForm(name);
    if (form != nullptr) {
      acts_.key(reachForm(name), key);
    } else {
      acts_.key(reach(name), key);
    }
  };
  commands_["set"] = [this](ScriptLine& line) {
    auto& slider = reachAs<front::Slider>(line.word(), "slider");
    acts_.setSlider(slider, within(wholeNumber(line.word()), slider.least(), slider.most()));
  };
  commands_["caret"] = [this](ScriptLine& line) {
    auto& box = reachAs<front::TextBox>(line.word(), "text control");
    const int size = static_cast<int>(box.text().size());
    const int position = within(wholeNumber(line.word()), 0, size);
    const int length = line.hasMore() ? within(wholeNumber(line.word()), 0, size - position) : 0;
    acts_.placeCaret(box, static_cast<std::size_t>(position), static_cast<std::size_t>(length));
  };
}

void Commands::addDisk() {
  commands_["setting"] = [this](ScriptLine& line) {
    const std::string section = line.word();
    const std::string key = line.word();
    if (key.empty()) throw Refused{"no key"};
    // The store's file could not give it back.
    const bool writable = key.find_first_of("=;#[") == std::string::npos;
    if (!writable) throw Refused{"'" + key + "' is no key"};
    orRefuse([&] { session_.settings.set(section, key, line.rest()); });
  };
  commands_["attribute"] = [this](ScriptLine& line) {
    const std::string attribute = line.lastWord();
    if (attribute != "read-only" && attribute != "normal") {
      throw Refused{"'" + attribute + "' is neither read-only nor normal"};
    }
    const std::string path = line.rest();
    orRefuse([&] { session_.disk.setReadOnly(path, attribute == "read-only"); });
  };
  commands_["chdir"] = [this](ScriptLine& line) {
    orRefuse([&] { session_.disk.changeFolder(line.rest()); });
  };
}

void Commands::addOutput() {
  commands_["show"] = [this](ScriptLine& line) {
    const front::Control& control = find(line.word());
    transcript_.print(showEvent(control, nameOf(session_, control)));
  };
  commands_["show-form"] = [this](ScriptLine& line) {
    for (const front::Control* control : loadedForm(line.word()).controls()) {
      transcript_.print(showEvent(*control, nameOf(session_, *control)));
    }
  };
  commands_["save-picture"] = [this](ScriptLine& line) { savePicture(line); };
  commands_["echo"] = [this](ScriptLine& line) {
    transcript_.print(JsonObject("echo").text("text", line.rest()));
  };
  commands_["expect"] = [this](ScriptLine& line) { checkProperty(line); };
  commands_["expect-box"] = [this](ScriptLine& line) {
    const std::string wanted = line.rest();
    if (!text::holds(front_.lastBox(), wanted)) {
      fail(line, "the last box says '" + front_.lastBox() + "', not '" + wanted + "'");
    }
  };
}

void Commands::checkProperty(ScriptLine& line) {
  const front::Control& control = find(line.word());
  const std::string name = line.word();
  const std::string wanted = line.rest();
  for (const Property& property : propertiesOf(control)) {
    if (property.name != name) continue;
    if (property.text != wanted) {
      fail(line, nameOf(session_, control) + " " + name + " is '" + property.text + "', not '" +
                     wanted + "'");
    }
    return;
  }
  throw Refused{control.name() + " has no property '" + name + "'"};
}

void Commands::savePicture(ScriptLine& line) {
  const front::Control& control = find(line.word());
  const auto* picture = dynamic_cast<const front::PictureBox*>(&control);
  if (picture == nullptr) throw Refused{control.name() + " is no drawing surface"};
  const std::string name = line.rest();
  if (name.empty()) throw Refused{"no file"};
  std::unique_ptr<text::HostFile> file;
  int error = host_.open(name, text::HostOpenMode::write, file);
  if (error == 0) error = file->write(graphics::bmpBytes(picture->surface()));
  if (error != 0) throw Refused{"cannot write '" + name + "'"};
}

void Commands::fail(const ScriptLine& line, const std::string& why) {
  outcome_.expectationFailed = true;
  transcript_.print(JsonObject("failed").number("line", line.number()).text("why", why));
}

}  // namespace norvik::headless
