#include "headless/control_state.h"

#include "front/choice_controls.h"
#include "front/list_box.h"
#include "front/picture_box.h"
#include "front/timer.h"
#include "graphics/crc32.h"

namespace norvik::headless {

namespace {

class PropertyList {
 public:
  void text(std::string_view name, std::string_view value) {
    add(name, jsonString(value), std::string{value});
  }
  void boolean(std::string_view name, bool value) {
    const std::string word = value ? "true" : "false";
    add(name, word, word);
  }
  void number(std::string_view name, float value) {
    const std::string digits = jsonNumber(value);
    add(name, digits, digits);
  }
  void whole(std::string_view name, long long value) {
    const std::string digits = std::to_string(value);
    add(name, digits, digits);
  }
  void texts(std::string_view name, const std::vector<std::string>& values) {
    list(name, values, jsonString);
  }
  void wholes(std::string_view name, const std::vector<int>& values) {
    std::vector<std::string> digits;
    digits.reserve(values.size());
    for (const int value : values) digits.push_back(std::to_string(value));
    list(name, digits, [](std::string_view text) { return std::string{text}; });
  }
  std::vector<Property> take() { return std::move(properties_); }

 private:
  void add(std::string_view name, std::string json, std::string text) {
    properties_.push_back({name, std::move(json), std::move(text)});
  }
  template <typename ToJson>
  void list(std::string_view name, const std::vector<std::string>& values, ToJson toJson) {
    std::string json = "[";
    std::string text;
    for (const std::string& value : values) {
      if (json.size() > 1) {
        json += ',';
        text += '|';
      }
      json += toJson(value);
      text += value;
    }
    add(name, json + "]", text);
  }

  std::vector<Property> properties_;
};

void addCommon(PropertyList& list, const front::Control& control) {
  list.boolean("visible", control.visible());
  list.boolean("enabled", control.enabled());
  list.number("left", control.box().left);
  list.number("top", control.box().top);
  list.number("width", control.box().width);
  list.number("height", control.box().height);
  list.whole("fore", control.fore());
  list.whole("back", control.back());
  list.text("tip", control.tip());
}

}  // namespace

std::vector<Property> propertiesOf(const front::Control& control) {
  PropertyList list;
  addCommon(list, control);
  if (const auto* box = dynamic_cast<const front::ListBox*>(&control)) {
    list.texts("items", box->items());
    list.wholes("selected", box->selection());
  }
  if (const auto* captioned = dynamic_cast<const front::CaptionControl*>(&control)) {
    list.text("caption", captioned->caption());
  }
  if (const auto* text = dynamic_cast<const front::TextBox*>(&control)) {
    list.text("text", text->text());
  }
  if (const auto* option = dynamic_cast<const front::OptionButton*>(&control)) {
    list.boolean("value", option->value());
  }
  if (const auto* check = dynamic_cast<const front::CheckBox*>(&control)) {
    list.boolean("value", check->value());
  }
  if (const auto* slider = dynamic_cast<const front::Slider*>(&control)) {
    list.whole("value", slider->value());
  }
  if (const auto* timer = dynamic_cast<const front::Timer*>(&control)) {
    list.whole("interval", timer->interval());
    list.boolean("running", timer->running());
  }
  if (const auto* picture = dynamic_cast<const front::PictureBox*>(&control)) {
    const graphics::Surface& surface = picture->surface();
    list.wholes("pixels", {surface.width(), surface.height()});
    list.whole("crc", graphics::crc32(surface.rgbBytes()));
  }
  return list.take();
}

JsonObject showEvent(const front::Control& control, std::string_view name) {
  JsonObject event("show");
  event.text("control", name).text("kind", front::kindName(control.kind()));
  for (const Property& property : propertiesOf(control)) event.raw(property.name, property.json);
  return event;
}

}  // namespace norvik::headless
