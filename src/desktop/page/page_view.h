#pragma once
// A page of text of any size on the screen.

#include "desktop/page/page_steps.h"
#include "front/text_pane.h"
#include "text/long/long_text_search.h"

#include <QAbstractScrollArea>
#include <QElapsedTimer>
#include <QTimer>

#include <functional>
#include <optional>
#include <string>

class QMimeData;
class QMenu;

namespace norvik::desktop {

/// What the operator does at a page.
struct PageHooks {
  /// Puts bytes in the place of others; `typed` for a key.
  std::function<void(std::size_t at, std::size_t length, const std::string& bytes, bool typed)>
      edit;
  std::function<void(std::size_t caret, std::size_t length)> placeCaret;
  std::function<void()> undo;
  std::function<void()> redo;
  /// A key has done its work.
  std::function<void(const std::string& key)> key;
  /// The mouse has come to rest.
  std::function<void()> clicked;
  std::function<void()> pressed;
};

/// Shows the text of a pane as it is there, with line numbers, the caret's line, the bracket that
/// belongs to the one at the caret, and the hits of a search. Only what is on view is looked at, so
/// that a text of four million lines scrolls and takes keys as one of forty does.
class PageView : public QAbstractScrollArea {
 public:
  PageView(const front::TextPane& pane, QWidget* parent);

  void setHooks(PageHooks hooks) { hooks_ = std::move(hooks); }
  /// The hits that are shaded; nothing shades none.
  void setShaded(std::optional<text::TextSearch> search);
  void setWritable(bool writable) { writable_ = writable; }

  /// Takes what the pane says by now: text, caret, selection.
  void follow();

  void cut();
  void copy();
  void paste();
  void selectAll();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
  bool focusNextPrevChild(bool next) override;

 private:
  const text::LongText& content() const { return pane_.content(); }
  bool isWide(char32_t letter) const;
  int rowsOnView() const;
  int gutterWidth() const;
  double xOf(std::int64_t column) const;
  std::size_t placeAt(const QPoint& point) const;
  QRect caretRect() const;
  void setUpFont();
  void setUpScrollBars();
  void presentCaret();
  void showCaret();
  void restartBlink();
  void lookForBrackets();

  std::size_t selectionStart() const { return std::min(anchor_, caret_); }
  std::size_t selectionEnd() const { return std::max(anchor_, caret_); }
  void moveTo(std::size_t place, bool select);
  void replaceSelection(const std::string& bytes, bool typed);
  bool editByKey(const QKeyEvent& event);
  bool moveByKey(const QKeyEvent& event);
  void eraseTo(std::size_t place);
  void extendByMouse();
  std::string coded(const QString& letters) const;
  QMimeData* selectionData() const;
  void insertFrom(const QMimeData* data);

  const front::TextPane& pane_;
  PageSteps steps_;
  PageHooks hooks_;
  std::optional<text::TextSearch> shaded_;
  bool writable_ = true;

  std::size_t anchor_ = 0;        ///< where the selection began
  std::size_t caret_ = 0;         ///< where it goes
  std::int64_t goalColumn_ = -1;  ///< of steps up and down
  std::uint64_t shownChanges_ = 0;
  std::optional<std::size_t> bracket_;  ///< that belongs to the other one
  std::optional<std::size_t> otherBracket_;

  double letterWidth_ = 1;
  int rowHeight_ = 1;
  int ascent_ = 1;
  std::int64_t widest_ = 0;  ///< columns seen so far
  bool caretOn_ = true;
  bool selectsWords_ = false;
  bool selectsByMouse_ = false;
  QTimer blink_;
  QTimer pull_;  ///< scrolls while the mouse is held outside
  QTimer look_;  ///< looks for brackets when the caret rests
  QElapsedTimer sinceDouble_;
};

/// The name of a key as the tools of a page know it: as in other controls, and "Backspace", "Tab",
/// "Left" and the like; a sign of the number pad has "Num" in front.
std::string pageKeyName(const QKeyEvent& event);

}  // namespace norvik::desktop
