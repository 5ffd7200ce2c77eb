#include "desktop/keyboard_rules.h"

#include "desktop/elided_label.h"
#include "desktop/page/page_view.h"
#include "desktop/window/overlay.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScrollArea>
#include <QShortcut>
#include <QToolButton>
#include <QtTest>

#include <algorithm>
#include <map>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;

QString plain(QString text) {
  return text.replace(QStringLiteral("&&"), QChar(1))
      .remove(QLatin1Char('&'))
      .replace(QChar(1), QLatin1Char('&'))
      .trimmed();
}

QString called(const QWidget& widget) {
  const QString name = widget.objectName();
  return QString::fromLatin1(widget.metaObject()->className()) + u' ' +
         (name.isEmpty() ? u'"' + spokenName(widget) + u'"' : name);
}

QRect placeOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

/// The page that a widget stands on: the window, or what lies over it.
const QWidget* pageOf(const QWidget& widget) {
  for (const QWidget* at = &widget; at != widget.window(); at = at->parentWidget()) {
    if (dynamic_cast<const Overlay*>(at) != nullptr) return at;
  }
  return widget.window();
}

/// Whether two stretches share more than a sliver.
bool share(int start, int length, int otherStart, int otherLength) {
  const int common =
      std::min(start + length, otherStart + otherLength) - std::max(start, otherStart);
  return 3 * common > std::min(length, otherLength);
}

/// Whether a control that Tab reaches later stands where an eye would have found it earlier.
bool comesTooLate(const QWidget& earlier, const QWidget& later) {
  if (pageOf(earlier) != pageOf(later)) return false;
  const QRect first = placeOf(earlier);
  const QRect second = placeOf(later);
  const bool oneColumn = share(first.x(), first.width(), second.x(), second.width());
  const bool oneRow = share(first.y(), first.height(), second.y(), second.height());
  if (oneRow) return !oneColumn && second.x() < first.x();
  return oneColumn && second.y() < first.y();
}

/// The next control by the key; a page whose text has tabs is left with Ctrl.
QWidget* next(QWidget& from, Qt::KeyboardModifiers held = Qt::NoModifier) {
  if (dynamic_cast<PageView*>(&from) != nullptr) held |= Qt::ControlModifier;
  QTest::keyClick(&from, held.testFlag(Qt::ShiftModifier) ? Qt::Key_Backtab : Qt::Key_Tab, held);
  return QApplication::focusWidget();
}

struct KeyUse {
  QString key;
  QString user;
};

void addMnemonic(std::vector<KeyUse>& uses, const QString& text, const QWidget& user) {
  const QKeySequence key = QKeySequence::mnemonic(text);
  if (!key.isEmpty()) uses.push_back({key.toString(), called(user)});
}

void addActions(std::vector<KeyUse>& uses, const QList<QAction*>& actions) {
  for (const QAction* action : actions) {
    if (!action->isVisible()) continue;
    for (const QKeySequence& key : action->shortcuts()) {
      uses.push_back({key.toString(), u"entry "_s + action->objectName() + action->text()});
    }
    if (action->menu() != nullptr) addActions(uses, action->menu()->actions());
  }
}

std::vector<KeyUse> keysOf(QWidget& window) {
  std::vector<KeyUse> uses;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->window() != &window) continue;
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
      addMnemonic(uses, button->text(), *widget);
    } else if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
      addMnemonic(uses, group->title(), *widget);
    } else if (const auto* label = qobject_cast<const QLabel*>(widget)) {
      if (label->buddy() != nullptr && label->buddy()->isVisible()) {
        addMnemonic(uses, label->text(), *widget);
      }
    } else if (const auto* bar = qobject_cast<const QMenuBar*>(widget)) {
      for (const QAction* menu : bar->actions()) {
        if (menu->isVisible()) addMnemonic(uses, menu->text(), *widget);
      }
      addActions(uses, bar->actions());
    }
  }
  for (const QShortcut* shortcut : window.findChildren<QShortcut*>()) {
    const auto* owner = qobject_cast<const QWidget*>(shortcut->parent());
    // One that is for a part of the window alone is heard there alone.
    const bool ofAll =
        shortcut->context() == Qt::WindowShortcut || shortcut->context() == Qt::ApplicationShortcut;
    if (!ofAll || owner == nullptr || owner->window() != &window || !owner->isVisible()) continue;
    uses.push_back({shortcut->key().toString(), u"shortcut of "_s + called(*owner)});
  }
  return uses;
}

/// The entries of a menu answer to one letter each.
QStringList sharedLetters(const QWidget& menu) {
  QStringList faults;
  std::map<QString, QString> users;
  for (const QAction* entry : menu.actions()) {
    if (entry->isSeparator() || !entry->isVisible()) continue;
    const QString key = QKeySequence::mnemonic(entry->text()).toString();
    if (!key.isEmpty() && users.contains(key)) {
      faults << key + u" opens "_s + users[key] + u" and "_s + entry->text();
    }
    users[key] = entry->text();
  }
  return faults;
}

bool lies(const QWidget& widget, const QWidget& window) {
  for (const QWidget* at = widget.parentWidget(); at != &window; at = at->parentWidget()) {
    if (qobject_cast<const QScrollArea*>(at) != nullptr) return true;
  }
  return window.rect().contains(placeOf(widget));
}

/// Whether the words of a widget are seen whole.
bool holdsItsWords(const QWidget& widget) {
  QString text;
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    text = button->text();
    const auto* tool = qobject_cast<const QToolButton*>(button);
    if (tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly) text.clear();
  } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    const bool givesWay = dynamic_cast<const ElidedLabel*>(label) != nullptr ||
                          label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
    if (givesWay) return true;
    if (label->wordWrap()) return label->height() + 1 >= label->heightForWidth(label->width());
    text = label->text();
  } else if (qobject_cast<const QLineEdit*>(&widget) != nullptr) {
    return widget.height() > widget.fontMetrics().height();
  }
  if (text.isEmpty()) return true;
  const QSize words = widget.fontMetrics().size(Qt::TextShowMnemonic, text);
  return widget.width() >= words.width() && widget.height() >= words.height();
}

}  // namespace

QString spokenName(const QWidget& widget) {
  if (!widget.accessibleName().isEmpty()) return widget.accessibleName();
  for (const QLabel* label : widget.window()->findChildren<QLabel*>()) {
    if (label->buddy() == &widget) return plain(label->text());
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    return plain(button->text());
  }
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return plain(group->title());
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return plain(label->text());
  return {};
}

std::vector<QWidget*> tabStops(QWidget& window) {
  std::vector<QWidget*> stops;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const bool reached = widget->isVisible() && widget->isEnabled() &&
                         widget->window() == &window && widget->focusProxy() == nullptr &&
                         (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
    if (reached) stops.push_back(widget);
  }
  return stops;
}

QStringList namelessControls(QWidget& window) {
  static const QRegularExpression codeName(
      QStringLiteral("^(Text|List|Label|Picture|Command|Option|Check|Combo|RichTextBox|Frame|Dir|"
                     "File|Drive|Form|Slider|VScroll|Image|Menu|Shape)([A-Z0-9]\\w*)$"));
  QStringList faults;
  for (const QWidget* stop : tabStops(window)) {
    const QString name = spokenName(*stop);
    if (name.isEmpty()) faults << called(*stop) + u" has no name"_s;
    if (codeName.match(name).hasMatch()) faults << called(*stop) + u" is called "_s + name;
  }
  return faults;
}

QStringList brokenTabOrder(QWidget& window) {
  std::vector<QWidget*> stops = tabStops(window);
  if (stops.empty()) return {};
  // Where a window begins is where Tab goes from the window itself.
  QWidget* first = window.nextInFocusChain();
  while (std::find(stops.begin(), stops.end(), first) == stops.end()) {
    first = first->nextInFocusChain();
  }
  first->setFocus(Qt::TabFocusReason);
  QStringList faults;
  std::vector<QWidget*> order{first};
  QWidget* at = first;
  for (std::size_t step = 1; step < stops.size(); ++step) {
    QWidget* const to = next(*at);
    if (to == at || to == nullptr) return faults << u"Tab does not leave "_s + called(*at);
    if (std::find(stops.begin(), stops.end(), to) == stops.end()) {
      return faults << u"Tab leads from "_s + called(*at) + u" astray to "_s + called(*to);
    }
    // Some lists go away as soon as another control is used.
    const bool allSeen = std::none_of(stops.begin(), stops.end(), [&order](QWidget* stop) {
      return stop->isVisible() && std::find(order.begin(), order.end(), stop) == order.end();
    });
    if (to == first && allSeen) {
      at->setFocus();
      break;
    }
    if (std::find(order.begin(), order.end(), to) != order.end()) {
      return faults << u"Tab leads from "_s + called(*at) + u" back to "_s + called(*to);
    }
    if (next(*to, Qt::ShiftModifier) != at) {
      faults << u"Shift+Tab does not lead from "_s + called(*to) + u" to "_s + called(*at);
    }
    to->setFocus(Qt::TabFocusReason);
    order.push_back(to);
    at = to;
  }
  if (stops.size() > 1 && next(*at) != first) {
    faults << u"Tab does not lead from "_s + called(*at) + u" to the first, "_s + called(*first);
  }
  for (std::size_t i = 0; i < order.size(); ++i) {
    for (std::size_t j = i + 1; j < order.size(); ++j) {
      if (!comesTooLate(*order[i], *order[j])) continue;
      faults << called(*order[j]) + u" comes behind "_s + called(*order[i]);
    }
  }
  return faults;
}

QStringList sharedKeys(QWidget& window) {
  QStringList faults;
  std::map<QString, QString> users;
  for (const KeyUse& use : keysOf(window)) {
    const auto [known, isNew] = users.emplace(use.key, use.user);
    if (!isNew) faults << use.key + u" is for "_s + known->second + u" and "_s + use.user;
  }
  for (const QMenu* menu : window.findChildren<QMenu*>()) faults << sharedLetters(*menu);
  return faults;
}

QStringList picturesWithoutTip(QWidget& window) {
  QStringList faults;
  for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    const bool ofAControl = button->isVisible() && button->focusPolicy() != Qt::NoFocus;
    const bool picture = !button->icon().isNull() || button->text().isEmpty();
    if (ofAControl && picture && button->toolTip().isEmpty()) {
      faults << called(*button) + u" has no tip"_s;
    }
  }
  return faults;
}

QStringList crampedControls(QWidget& window, const QSize& room) {
  QStringList faults;
  const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
  if (least.width() > room.width() || least.height() > room.height()) {
    faults << QStringLiteral("the window needs %1 by %2").arg(least.width()).arg(least.height());
  }
  window.setMinimumSize(window.minimumSize().boundedTo(room));
  window.resize(room);
  QTest::qWait(30);
  for (const QWidget* more : window.findChildren<QWidget*>(u"qt_toolbar_ext_button"_s)) {
    if (more->isVisible()) faults << u"the tool bar has no room for its tools"_s;
  }
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->window() != &window) continue;
    const bool control = widget->focusPolicy() != Qt::NoFocus;
    if (control && !lies(*widget, window)) faults << called(*widget) + u" reaches over the edge"_s;
    if (!holdsItsWords(*widget)) faults << called(*widget) + u" cuts its words"_s;
  }
  return faults;
}

}  // namespace norvik::desktop
