#pragma once
// What all controls have in common.

#include "front/colours.h"
#include "front/event.h"

#include <string>
#include <string_view>
#include <vector>

namespace norvik::front {

class Form;

enum class ControlKind {
  listBox,
  label,
  textBox,
  richTextBox,
  comboBox,
  pictureButton,
  optionButton,
  checkBox,
  commandButton,
  slider,
  scrollBar,
  timer,
  menuEntry,
  frame,
  shape,
  image,
  drawingSurface,
  folderList,
  driveList,
  fileList,
};

/// The kind in words: "list box", "menu entry".
std::string_view kindName(ControlKind kind);

/// A place on a form, in pixels; a form's own is in twips, 15 to a pixel.
struct Box {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
};

/// A named object on a form whose state the tools read and write, whether anything draws it or not.
/// A setter that changes something marks the control, and a front end that draws collects the marks
/// (Form::takeChanges).
class Control {
 public:
  Control(Form& form, std::string_view name, ControlKind kind);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const std::string& name() const { return name_; }
  ControlKind kind() const { return kind_; }
  Form& form() const { return form_; }

  bool visible() const { return visible_; }
  void setVisible(bool visible) { set(visible_, visible); }
  void show() { setVisible(true); }
  void hide() { setVisible(false); }

  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled) { set(enabled_, enabled); }

  const Box& box() const { return box_; }
  void setBox(const Box& box);
  void setLeft(float left) { set(box_.left, left); }
  void setWidth(float width) { set(box_.width, width); }

  Colour fore() const { return fore_; }
  void setFore(Colour colour) { set(fore_, colour); }
  Colour back() const { return back_; }
  void setBack(Colour colour) { set(back_, colour); }

  const std::string& tip() const { return tip_; }
  void setTip(std::string_view tip) { set(tip_, tip); }

  float fontSize() const { return fontSize_; }
  void setFontSize(float points) { set(fontSize_, points); }

  /// Whether a mouse press on the control starts a drag; the tool that owns the target says so.
  bool dragging() const { return dragging_; }
  void setDragging(bool dragging) { dragging_ = dragging; }

  /// Whether the operator can reach the control: it is visible and enabled, and so is what holds
  /// it.
  virtual bool reachable() const { return visible_ && enabled_; }

  Event<Mouse> pressed{*this};
  Event<Mouse> moved{*this};
  Event<Mouse> released{*this};
  Event<> clicked{*this};
  Event<> doubleClicked{*this};
  Event<Control&> dropped{*this};  ///< with the control that was dragged here
  /// With the system paths of the files of a desktop that were dropped here as one.
  Event<const std::vector<std::string>&> filesDropped{*this};
  Event<const std::string&> key{*this};  ///< "Enter", "Ctrl+F1", or one character

 protected:
  void touch();
  template <typename Slot, typename Value>
  void set(Slot& slot, const Value& value) {
    if (slot == value) return;
    slot = value;
    touch();
  }

 private:
  friend class Form;
  Form& form_;
  std::string name_;
  ControlKind kind_;
  bool visible_ = true;
  bool enabled_ = true;
  bool changed_ = false;
  bool dragging_ = false;
  Box box_;
  Colour fore_ = kBlack;
  Colour back_ = kWhite;
  std::string tip_;
  float fontSize_;
};

}  // namespace norvik::front
