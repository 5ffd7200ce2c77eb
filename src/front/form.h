#pragma once
// A form: a window's worth of controls, with or without a window.

#include "front/control.h"

#include <string>
#include <string_view>
#include <vector>

namespace norvik::front {

enum class WindowState { normal, maximised };

/// The mouse pointer values that the tools use.
enum class Pointer { arrow = 1, hourglass = 11 };

/// A form is a struct of controls that derives from this class; each control enters itself in the
/// order of its declaration. The form's own box is in twips.
class Form {
 public:
  Form(std::string_view name, std::string_view caption);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  const std::string& name() const { return name_; }
  /// The window's title.
  const std::string& caption() const { return caption_; }
  void setCaption(std::string_view caption) { caption_ = caption; }

  const std::vector<Control*>& controls() const { return controls_; }
  /// The control of that name, names without regard to case; none if there is none.
  Control* find(std::string_view name) const;

  /// Whether the form is on view or could be: its controls take what the operator does.
  bool loaded() const { return loaded_; }
  void setLoaded(bool loaded) { loaded_ = loaded; }

  /// The form's place on the screen, in twips.
  const Box& box() const { return box_; }
  void setBox(const Box& box) { box_ = box; }
  float fontSize() const { return fontSize_; }
  void setFontSize(float points) { fontSize_ = points; }
  WindowState state() const { return state_; }
  void setState(WindowState state) { state_ = state; }
  /// The mouse pointer while the tools run.
  Pointer pointer() const { return pointer_; }
  void setPointer(Pointer pointer) { pointer_ = pointer; }

  /// The control that takes the keys; none at first.
  Control* focus() const { return focus_; }
  void setFocus(Control& control) { focus_ = &control; }

  /// The controls that changed since the last call, each once, in the order of their first change.
  std::vector<Control*> takeChanges();

  Event<const std::string&> key{*this};
  Event<Mouse> released{*this};  ///< over the form itself, where no control is
  Event<> loading{*this};        ///< what the form does before it is shown
  Event<> shown{*this};          ///< what it does once it is on view: all that a load says or asks
  Event<> unloading{*this};      ///< what the form does when it is unloaded, also by its close box

 private:
  friend class Control;
  void add(Control& control) { controls_.push_back(&control); }
  void noteChange(Control& control) { changed_.push_back(&control); }

  std::string name_;
  std::string caption_;
  std::vector<Control*> controls_;
  std::vector<Control*> changed_;
  Control* focus_ = nullptr;
  bool loaded_ = false;
  Box box_;
  float fontSize_;
  WindowState state_ = WindowState::normal;
  Pointer pointer_ = Pointer::arrow;
};

}  // namespace norvik::front
