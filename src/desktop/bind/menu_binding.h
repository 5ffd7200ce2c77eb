#pragma once
// Menus.

#include "desktop/bind/binding.h"
#include "front/menu_entry.h"

#include <QAction>
#include <QObject>

#include <map>
#include <set>

class QMenu;
class QMenuBar;

namespace norvik::desktop {

/// An entry of a menu, or of the menu bar.
class MenuBinding : public Binding {
 public:
  MenuBinding(Dispatcher& dispatcher, front::MenuEntry& entry, QAction& action)
      : Binding(dispatcher, entry), entry_(entry), action_(action) {}

  /// The caption with its mnemonic, as long as the caption stands.
  void setText(const QString& text) { text_ = text; }

 protected:
  void refresh() override;

 private:
  front::MenuEntry& entry_;
  QAction& action_;
  QString text_;
};

/// The menu tree of a form. Choosing an entry first opens the menus above it, unless the operator
/// has unfolded them: that is so with a shortcut.
class MenuTree : public QObject {
 public:
  MenuTree(Dispatcher& dispatcher, Bindings& bindings, front::Form& form, QMenuBar& bar);

  QAction* action(const front::MenuEntry& entry) const { return actions_.at(&entry); }
  /// The menu that an entry unfolds; null for one that is chosen.
  QMenu* menu(const front::MenuEntry& entry) const;
  /// Chooses an entry as the operator does.
  void choose(front::MenuEntry& entry);

 private:
  void addEntry(front::MenuEntry& entry, QMenuBar& bar, bool unfolds);
  void open(front::MenuEntry& entry);

  Dispatcher& dispatcher_;
  Bindings& bindings_;
  std::map<const front::MenuEntry*, QAction*> actions_;
  std::map<const front::MenuEntry*, QMenu*> menus_;
  std::map<QWidget*, QString> mnemonics_;  ///< letters in use, a menu
  std::set<const front::MenuEntry*> unfolded_;
};

}  // namespace norvik::desktop
