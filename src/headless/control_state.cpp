#include "headless/control_state.h"

#include "front/choice_controls.h"
#include "front/file_lists.h"
#include "front/list_box.h"
#include "front/picture_box.h"
#include "front/rich_text.h"
#include "front/text_pane.h"
#include "front/timer.h"
#include "graphics/crc32.h"
#include "text/columns.h"

namespace norvik::headless {

namespace {

front::Colour lineColour(const front::RichTextBox& page, std::size_t line) {
  return page.lineColour(line);
}

front::Colour lineColour(const front::TextPane& page, std::size_t) {
  return page.fore();
}

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
  template <typename Page>
  void colours(std::string_view name, const Page& page) {
    std::vector<std::string> triples;
    for (std::size_t line = 0; line < page.lineCount(); ++line) {
      const front::Colour colour = lineColour(page, line);
      triples.push_back("[" + std::to_string(graphics::redOf(colour)) + "," +
                        std::to_string(graphics::greenOf(colour)) + "," +
                        std::to_string(graphics::blueOf(colour)) + "]");
    }
    list(name, triples, [](std::string_view text) { return std::string{text}; });
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
    list.wholes("selected", box->hasTicks() ? box->ticks() : box->selection());
  }
  if (const auto* files = dynamic_cast<const front::FileList*>(&control)) {
    list.text("path", files->path());
    list.text("pattern", files->pattern());
  }
  if (const auto* folders = dynamic_cast<const front::FolderList*>(&control)) {
    list.text("path", folders->path());
  }
  if (const auto* drives = dynamic_cast<const front::DriveList*>(&control)) {
    list.text("path", drives->path());
  }
  if (const auto* captioned = dynamic_cast<const front::CaptionControl*>(&control)) {
    list.text("caption", captioned->caption());
  }
  if (const auto* text = dynamic_cast<const front::TextBox*>(&control)) {
    list.text("text", text->text());
    list.whole("start", static_cast<long long>(text->caret()));
    list.whole("length", static_cast<long long>(text->selectionLength()));
  }
  if (const auto* combo = dynamic_cast<const front::ComboBox*>(&control)) {
    list.texts("items", combo->items());
  }
  if (const auto* page = dynamic_cast<const front::RichTextBox*>(&control)) {
    list.colours("colours", *page);
  }
  if (const auto* pane = dynamic_cast<const front::TextPane*>(&control)) {
    list.text("text", pane->text());
    list.whole("start", static_cast<long long>(pane->caret()));
    list.whole("length", static_cast<long long>(pane->selectionLength()));
    list.colours("colours", *pane);
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

bool putProperty(front::Control& control, std::string_view name, const std::string& value) {
  if (auto* captioned = dynamic_cast<front::CaptionControl*>(&control);
      captioned && name == "caption") {
    captioned->setCaption(value);
  } else if (auto* box = dynamic_cast<front::TextBox*>(&control); box && name == "text") {
    box->setText(value);
  } else if (auto* pane = dynamic_cast<front::TextPane*>(&control); pane && name == "text") {
    pane->setContent(text::LongText(value));
  } else if (auto* list = dynamic_cast<front::ListBox*>(&control); list && name == "items") {
    list->clear();
    for (const std::string& item : text::parts(value, '|')) list->add(item);
  } else if (auto* files = dynamic_cast<front::FileList*>(&control); files && name == "path") {
    files->setPath(value);
  } else if (auto* folders = dynamic_cast<front::FolderList*>(&control);
             folders && name == "path") {
    folders->setPath(value);
  } else if (auto* drives = dynamic_cast<front::DriveList*>(&control); drives && name == "path") {
    drives->setPath(value);
  } else {
    return false;
  }
  return true;
}

std::vector<Property> propertiesOf(const front::Form& form) {
  PropertyList list;
  list.boolean("visible", form.loaded());
  list.text("caption", form.caption());
  return list.take();
}

JsonObject showEvent(const front::Form& form) {
  JsonObject event("show");
  event.text("control", form.name()).text("kind", "form");
  for (const Property& property : propertiesOf(form)) event.raw(property.name, property.json);
  return event;
}

}  // namespace norvik::headless
