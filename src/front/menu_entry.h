#pragma once
// Menu entries, which stand in a tree.

#include "front/text_controls.h"

#include <string_view>

namespace norvik::front {

class MenuEntry : public CaptionControl {
 public:
  /// An entry of the menu bar.
  MenuEntry(Form& form, std::string_view name, std::string_view caption)
      : CaptionControl(form, name, ControlKind::menuEntry, caption) {}
  /// An entry of another entry's menu.
  MenuEntry(MenuEntry& above, std::string_view name, std::string_view caption)
      : CaptionControl(above.form(), name, ControlKind::menuEntry, caption), above_(&above) {}

  MenuEntry* above() const { return above_; }
  bool reachable() const override {
    return Control::reachable() && (above_ == nullptr || above_->reachable());
  }

  Event<> opened{*this};  ///< its menu unfolds; always before an entry below it is chosen

 private:
  MenuEntry* above_ = nullptr;
};

}  // namespace norvik::front
