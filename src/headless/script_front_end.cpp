#include "headless/script_front_end.h"

#include "graphics/bmp_reader.h"

#include <algorithm>
#include <array>
#include <ctime>

namespace norvik::headless {

namespace {

constexpr float kTwipsPerPixel = 15;

std::string_view answerName(front::Answer answer) {
  switch (answer) {
    case front::Answer::ok:
      return "OK";
    case front::Answer::cancel:
      return "Cancel";
    case front::Answer::yes:
      return "Yes";
    case front::Answer::no:
      return "No";
  }
  return "";
}

std::string colourJson(front::Colour colour) {
  const auto part = [colour](unsigned shift) { return std::to_string(colour >> shift & 0xFFU); };
  return "[" + part(0) + "," + part(8) + "," + part(16) + "]";
}

}  // namespace

void ScriptFrontEnd::stopUnanswered() {
  outcome_.unanswered = true;
  throw front::ToolStopped{};
}

front::Answer ScriptFrontEnd::messageBox(std::string_view text, std::string_view title, int style) {
  lastBox_ = text;
  const bool okAlone = (style & front::kButtonMask) == front::kOk;
  const auto answer = okAlone ? front::Answer::ok : answers_.takeBox();
  JsonObject event("box");
  event.text("title", title).text("text", text).number("style", style);
  if (answer) {
    event.text("answer", answerName(*answer));
  } else {
    event.raw("answer", "null");
  }
  transcript_.print(event);
  if (!answer) stopUnanswered();
  return *answer;
}

std::optional<std::string> ScriptFrontEnd::fileDialog(const front::FileDialog& dialog) {
  const auto answer = answers_.takeDialog(DialogAnswer::Kind::file);
  const bool accepted = answer && answer->kind == DialogAnswer::Kind::file;
  transcript_.print(
      JsonObject("dialog")
          .text("kind", dialog.kind == front::FileDialog::Kind::open ? "open" : "save")
          .text("name", dialog.name)
          .text("title", dialog.title)
          .text("folder", dialog.folder)
          .text("file", dialog.file)
          .textOrNull("result", accepted ? &answer->path : nullptr));
  if (!answer) stopUnanswered();
  if (!accepted) return std::nullopt;
  return answer->path;
}

std::optional<front::Colour> ScriptFrontEnd::colourDialog(front::Colour) {
  const auto answer = answers_.takeDialog(DialogAnswer::Kind::colour);
  const bool accepted = answer && answer->kind == DialogAnswer::Kind::colour;
  transcript_.print(
      JsonObject("colour").raw("result", accepted ? colourJson(answer->colour) : "null"));
  if (!answer) stopUnanswered();
  if (!accepted) return std::nullopt;
  return answer->colour;
}

bool ScriptFrontEnd::printerDialog() {
  const auto answer = answers_.takeDialog(DialogAnswer::Kind::print);
  const bool accepted = answer && answer->kind == DialogAnswer::Kind::print;
  JsonObject event("printer");
  if (answer) {
    event.boolean("result", accepted);
  } else {
    event.raw("result", "null");
  }
  transcript_.print(event);
  if (!answer) stopUnanswered();
  return accepted;
}

void ScriptFrontEnd::print(std::string_view font, const std::vector<std::string>& lines,
                           std::size_t) {
  transcript_.print(JsonObject("print").text("font", font).texts("lines", lines));
}

void ScriptFrontEnd::beep() {
  transcript_.print(JsonObject("beep"));
}

void ScriptFrontEnd::waitForOperator() {
  if (ended_ || !step_ || !step_()) throw front::ToolStopped{};
}

RememberingDevice& ScriptFrontEnd::rememberingDevice(front::PictureBox& picture) {
  auto& device = devices_[&picture];
  if (!device) device = std::make_unique<RememberingDevice>(picture);
  return *device;
}

bool ScriptFrontEnd::nextFrame() {
  if (++drawn_ < frames_) return !ended_;
  drawn_ = 0;
  return !ended_ && step_ && step_() && !ended_;
}

std::optional<graphics::Surface> ScriptFrontEnd::decodePicture(std::string_view bytes) {
  return graphics::bmpSurface(bytes);
}

void ScriptFrontEnd::printForm(const front::Form& form, std::string_view state) {
  transcript_.print(JsonObject("form").text("form", form.name()).text("state", state));
}

void ScriptFrontEnd::show(front::Form& form) {
  printForm(form, "shown");
}

void ScriptFrontEnd::showModal(front::Form& form, const std::function<void()>& shown) {
  form.setLoaded(true);
  printForm(form, "modal");
  modals_.push_back(&form);
  shown();
  while (form.loaded() && !ended_ && step_ && step_()) {
  }
  if (form.loaded() && unload_) unload_(form);
  std::erase(modals_, &form);
}

void ScriptFrontEnd::unloaded(front::Form& form) {
  printForm(form, "unloaded");
}

front::Screen ScriptFrontEnd::screen() const {
  return {options_.screenWidth * kTwipsPerPixel, options_.screenHeight * kTwipsPerPixel};
}

void ScriptFrontEnd::openDocument(std::string_view verb, std::string_view target,
                                  std::string_view) {
  transcript_.print(JsonObject("open").text("verb", verb).text("target", target));
}

void ScriptFrontEnd::run(std::string_view commandLine) {
  transcript_.print(JsonObject("run").text("command", commandLine));
}

front::ProgramRun ScriptFrontEnd::runToEnd(std::string_view program,
                                           const std::vector<std::string>& arguments) {
  std::string line{program};
  for (const std::string& argument : arguments) line.append(" ").append(argument);
  run(line);
  return front::ProgramRun::leftToCaller;
}

void ScriptFrontEnd::playSound(std::string_view path) {
  transcript_.print(JsonObject("sound").text("path", path));
}

front::Fetched ScriptFrontEnd::fetch(std::string_view address, std::string_view) {
  transcript_.print(JsonObject("fetch").text("target", address).boolean("result", false));
  return {};
}

std::string ScriptFrontEnd::now() const {
  if (!options_.clock.empty()) return options_.clock;
  const std::time_t time = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&time, &local);
  std::array<char, 32> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &local);
  return {text.data(), length};
}

void ScriptFrontEnd::runtimeError(const text::FileError& error) {
  JsonObject event("runtime-error");
  event.number("number", static_cast<int>(error.number())).text("text", error.text());
  if (!error.path().empty()) event.text("path", error.path());
  transcript_.print(event);
}

void ScriptFrontEnd::endProcess() {
  ended_ = true;
  transcript_.print(JsonObject("end"));
}

}  // namespace norvik::headless
