#include "desktop/bind/pane_binding.h"

#include "desktop/page/page_view.h"

#include <QKeyEvent>
#include <QKeySequence>

namespace norvik::desktop {

PaneBinding::PaneBinding(Dispatcher& dispatcher, front::TextPane& pane, PageView& view)
    : WidgetBinding(dispatcher, pane, view, Clicks::own), pane_(pane), view_(view) {
  view.setContextMenuPolicy(Qt::DefaultContextMenu);
  PageHooks hooks;
  hooks.edit = [this](std::size_t at, std::size_t length, const std::string& bytes, bool typed) {
    edit([&] { pane_.replace(at, length, bytes, typed); });
  };
  hooks.undo = [this] { edit([this] { pane_.undo(); }); };
  hooks.redo = [this] { edit([this] { pane_.redo(); }); };
  hooks.placeCaret = [this](std::size_t caret, std::size_t length) {
    if (accepts()) pane_.setCaret(caret, length);
  };
  hooks.key = [this](const std::string& key) {
    if (accepts()) raise(pane_.key, key);
  };
  hooks.pressed = [this] {
    if (accepts()) raise(pane_.pressed, front::Mouse{});
  };
  hooks.clicked = [this] {
    if (accepts()) raise(pane_.released, front::Mouse{});
  };
  view.setHooks(std::move(hooks));
}

void PaneBinding::edit(const std::function<void()>& act) {
  const std::uint64_t before = pane_.textChanges();
  if (!accepts()) return;
  act();
  if (pane_.textChanges() != before) raise(pane_.changed);
}

/// Keys that edit the page are not those of a menu, wherever that is.
bool PaneBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    for (const QKeySequence::StandardKey command :
         {QKeySequence::Undo, QKeySequence::Redo, QKeySequence::Cut, QKeySequence::Copy,
          QKeySequence::Paste, QKeySequence::SelectAll}) {
      if (!key.matches(command)) continue;
      event->accept();
      return true;
    }
  }
  return WidgetBinding::eventFilter(watched, event);
}

void PaneBinding::refresh() {
  view_.follow();
  WidgetBinding::refresh();
}

}  // namespace norvik::desktop
