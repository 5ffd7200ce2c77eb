#pragma once
// What an operator does at a control, as the events that the control delivers.

#include "front/file_lists.h"
#include "front/session.h"
#include "front/text_pane.h"

#include <string>
#include <vector>

namespace norvik::headless {

/// Delivers the operator's acts, each event as a handler of its own.
class OperatorActs {
 public:
  explicit OperatorActs(front::Session& session) : session_(session) {}

  /// A left click. A menu entry is chosen: the menus above it open first, from the top. A list gets
  /// no mouse down, which would begin a drag.
  void click(front::Control& control);
  void rightClick(front::Control& control);
  /// On the form itself.
  void rightClick(front::Form& form);
  void doubleClick(front::Control& control);

  /// Selects the items at these indexes, which must exist, and delivers the click of the last one;
  /// without an index only the selection is cleared.
  void select(front::ListBox& list, const std::vector<int>& indexes);
  /// The same with one item, Shift held.
  void selectWithShift(front::ListBox& list, int index);
  void tick(front::ListBox& list, int index, bool on);

  /// Presses the mouse on a control and lets go over another. A drop arrives if the press started a
  /// drag; what is dragged is the selection as it stands.
  void drop(front::Control& from, front::Control& onto);
  void dropFiles(const std::vector<std::string>& paths, front::Control& onto);

  /// Replaces the text as a paste by mouse does; the caret stands at the start afterwards.
  void type(front::TextBox& box, const std::string& text);
  void type(front::TextPane& pane, const std::string& text);
  /// Walks to a folder, or picks a drive; false, and nothing done, if it is not there.
  bool walk(front::FolderList& folders, const std::string& path);
  bool pick(front::DriveList& drives, const std::string& drive);
  void key(front::Control& control, const std::string& key);
  void key(front::Form& form, const std::string& key);
  void setSlider(front::Slider& slider, int value);
  void placeCaret(front::TextBox& box, std::size_t position, std::size_t length);
  void placeCaret(front::TextPane& pane, std::size_t position, std::size_t length);

  void press(front::Control& control, front::Mouse mouse);
  void move(front::Control& control, front::Mouse mouse);
  void release(front::Control& control, front::Mouse mouse);
  /// Moves the mouse over a control, no button held.
  void hover(front::Control& control);
  void expire(front::Timer& timer);

 private:
  template <typename... Args, typename... Values>
  void deliver(const front::Event<Args...>& event, Values&&... values) {
    session_.deliver(session_.nameOf(event), [&] { event.raise(values...); });
  }
  void choose(front::MenuEntry& entry);

  front::Session& session_;
};

}  // namespace norvik::headless
