#pragma once
// List boxes: ordered strings that are display and data at once.

#include "front/control.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::front {

/// How many items can be selected at once; `ticks` is a list with check marks, of which one can be.
enum class Selection { single, multiple, ticks };

/// Items, a selection, and for some lists check marks. Filling is linear: an item costs the same
/// whatever the list holds. Indexes outside the list change nothing.
class ListBox : public Control {
 public:
  static constexpr int kNone = -1;

  ListBox(Form& form, std::string_view name, Selection selection = Selection::single,
          ControlKind kind = ControlKind::listBox);

  int count() const { return static_cast<int>(items_.size()); }
  const std::vector<std::string>& items() const { return items_; }
  /// The item at an index from 0; empty beyond the last one and for a negative index.
  std::string_view item(int index) const;

  /// Empties the list and forgets the selection.
  void clear();
  /// Adds an item at the end.
  void add(std::string_view item);
  /// Adds an item in front of the one at an index, at the end for the index behind the last one.
  void insert(int index, std::string_view item);
  /// Gives an item another text; it stays selected if it was.
  void setItem(int index, std::string_view item);
  /// Takes an item out; those behind it move up with their selection.
  void remove(int index);
  /// Counts the changes of the items, so that a front end that draws them can tell a change of the
  /// list from one of its selection.
  std::uint64_t itemChanges() const { return itemChanges_; }

  bool multiple() const { return selection_ == Selection::multiple; }
  bool hasTicks() const { return selection_ == Selection::ticks; }
  bool selected(int index) const;
  /// Selects an item without a click; a single-selection list keeps one at the most.
  void setSelected(int index, bool selected);
  /// The indexes of the selected items, in list order.
  std::vector<int> selection() const;
  void clearSelection();

  /// The index that was clicked last, or kNone: "the selected index" also when several are
  /// selected.
  int index() const { return index_; }
  /// The item at that index; empty if there is none.
  std::string_view chosen() const { return item(index_); }
  /// Selects an item as a click does; in a single-selection list the others lose theirs.
  void choose(int index);

  /// Whether Shift is held during the click that is being delivered.
  bool shiftHeld() const { return shiftHeld_; }
  void setShiftHeld(bool held) { shiftHeld_ = held; }

  bool ticked(int index) const;
  void setTicked(int index, bool ticked);
  /// The indexes of the ticked items, in list order.
  std::vector<int> ticks() const;
  Event<int> tickChanged{*this};

 private:
  bool holds(int index) const { return index >= 0 && index < count(); }

  Selection selection_;
  std::vector<std::string> items_;
  std::vector<bool> selected_;
  std::vector<bool> ticked_;
  std::uint64_t itemChanges_ = 0;
  int index_ = kNone;
  bool shiftHeld_ = false;
};

}  // namespace norvik::front
