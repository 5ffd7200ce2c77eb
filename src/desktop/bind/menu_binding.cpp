#include "desktop/bind/menu_binding.h"

#include "desktop/words.h"
#include "front/form.h"

#include <QMenu>
#include <QMenuBar>
#include <QTimer>

namespace norvik::desktop {

namespace {

bool isBlank(const std::string& caption) {
  return caption.find_first_not_of(' ') == std::string::npos;
}

/// A caption with an ampersand before its first letter that is free in the menu; the beginnings of
/// words come first.
QString withMnemonic(const std::string& caption, QString& used) {
  const QString plain = shown(caption);
  const auto isFree = [&](int i) {
    return plain[i].isLetterOrNumber() && !used.contains(plain[i].toUpper());
  };
  int place = -1;
  for (int i = 0; i < plain.size() && place < 0; ++i) {
    const bool starts = i == 0 || plain[i - 1] == QLatin1Char(' ');
    if (starts && isFree(i)) place = i;
  }
  for (int i = 0; i < plain.size() && place < 0; ++i) {
    if (isFree(i)) place = i;
  }
  QString text = plain;
  if (place >= 0) used += plain[place].toUpper();
  if (place >= 0) text.insert(place, QChar(1));
  return text.replace(QLatin1Char('&'), QStringLiteral("&&")).replace(QChar(1), QLatin1Char('&'));
}

}  // namespace

void MenuBinding::refresh() {
  if (isBlank(entry_.caption())) {
    action_.setSeparator(true);
  } else {
    const QString plain = shown(entry_.caption());
    QString bare = text_;
    bare.remove(QLatin1Char('&'));
    QString same = plain;
    same.remove(QLatin1Char('&'));
    action_.setText(bare == same ? text_
                                 : QString(plain).replace(QLatin1Char('&'), QStringLiteral("&&")));
  }
  action_.setEnabled(entry_.enabled());
  action_.setVisible(entry_.visible());
  if (!entry_.tip().empty()) action_.setToolTip(shown(entry_.tip()));
}

MenuTree::MenuTree(Dispatcher& dispatcher, Bindings& bindings, front::Form& form, QMenuBar& bar)
    : dispatcher_(dispatcher), bindings_(bindings) {
  std::set<const front::MenuEntry*> above;
  for (const front::Control* control : form.controls()) {
    const auto* entry = dynamic_cast<const front::MenuEntry*>(control);
    if (entry != nullptr) above.insert(entry->above());
  }
  for (front::Control* control : form.controls()) {
    auto* entry = dynamic_cast<front::MenuEntry*>(control);
    if (entry != nullptr) addEntry(*entry, bar, above.contains(entry));
  }
}

QMenu* MenuTree::menu(const front::MenuEntry& entry) const {
  const auto found = menus_.find(&entry);
  return found == menus_.end() ? nullptr : found->second;
}

void MenuTree::addEntry(front::MenuEntry& entry, QMenuBar& bar, bool unfolds) {
  QMenu* over = entry.above() == nullptr ? nullptr : menu(*entry.above());
  QWidget* parent = over == nullptr ? static_cast<QWidget*>(&bar) : over;
  const QString text = withMnemonic(entry.caption(), mnemonics_[parent]);
  const QString name = QString::fromStdString(entry.name());

  QAction* action = nullptr;
  if (unfolds) {
    auto* made = over == nullptr ? bar.addMenu(text) : over->addMenu(text);
    made->setObjectName(name + QStringLiteral("List"));
    menus_[&entry] = made;
    action = made->menuAction();
    connect(made, &QMenu::aboutToShow, this, [this, &entry] {
      unfolded_.insert(&entry);
      dispatcher_.raise(entry.opened);
    });
    // The menu folds before the chosen entry tells of it.
    connect(made, &QMenu::aboutToHide, this, [this, &entry] {
      QTimer::singleShot(0, this, [this, &entry] { unfolded_.erase(&entry); });
    });
  } else {
    action = over == nullptr ? bar.addAction(text) : over->addAction(text);
    connect(action, &QAction::triggered, this, [this, &entry] { choose(entry); });
  }
  action->setObjectName(name);
  actions_[&entry] = action;
  auto binding = std::make_unique<MenuBinding>(dispatcher_, entry, *action);
  binding->setText(text);
  bindings_.add(std::move(binding));
}

void MenuTree::open(front::MenuEntry& entry) {
  if (entry.above() != nullptr) open(*entry.above());
  if (!unfolded_.contains(&entry)) dispatcher_.raise(entry.opened);
}

void MenuTree::choose(front::MenuEntry& entry) {
  if (!entry.reachable() || !dispatcher_.open()) return;
  if (entry.above() != nullptr) open(*entry.above());
  dispatcher_.raise(entry.opened);
  dispatcher_.raise(entry.clicked);
}

}  // namespace norvik::desktop
