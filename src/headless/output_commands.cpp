// The commands that print what is there, and those that check it.

#include "front/picture_box.h"
#include "graphics/bmp.h"
#include "headless/arguments.h"
#include "headless/commands.h"
#include "headless/control_state.h"
#include "text/columns.h"

namespace norvik::headless {

void Commands::addOutput() {
  add("show", 1, [this](ScriptLine& line) {
    const std::string name = line.word();
    if (const front::Form* form = session_.findForm(name); form != nullptr) {
      transcript_.print(showEvent(*form));
      return;
    }
    const front::Control& control = find(name);
    transcript_.print(showEvent(control, session_.nameOf(control)));
  });
  add("show-form", 1, [this](ScriptLine& line) {
    for (const front::Control* control : loadedForm(line.word()).controls()) {
      transcript_.print(showEvent(*control, session_.nameOf(*control)));
    }
  });
  add("save-picture", kAny, [this](ScriptLine& line) { savePicture(line); });
  add("echo", kAny, [this](ScriptLine& line) {
    transcript_.print(JsonObject("echo").text("text", line.rest()));
  });
  add("expect", kAny, [this](ScriptLine& line) { checkProperty(line); });
  add("expect-box", kAny, [this](ScriptLine& line) {
    const std::string wanted = line.rest();
    if (!text::holds(front_.lastBox(), wanted)) {
      fail(line, "the last box says '" + front_.lastBox() + "', not '" + wanted + "'");
    }
  });
}

void Commands::checkProperty(ScriptLine& line) {
  const std::string of = line.word();
  const front::Form* form = session_.findForm(of);
  const front::Control* control = form != nullptr ? nullptr : &find(of);
  const auto properties = form != nullptr ? propertiesOf(*form) : propertiesOf(*control);
  const std::string name = line.word();
  const std::string wanted = line.rest();
  for (const Property& property : properties) {
    if (property.name != name) continue;
    if (property.text != wanted) {
      const std::string owner = form != nullptr ? form->name() : session_.nameOf(*control);
      fail(line, owner + " " + name + " is '" + property.text + "', not '" + wanted + "'");
    }
    return;
  }
  const std::string owner = form != nullptr ? form->name() : control->name();
  throw Refused{owner + " has no property '" + name + "'"};
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
