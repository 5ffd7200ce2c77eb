#pragma once
// The manual editor on the screen.

#include "desktop/forms/form_windows.h"
#include "desktop/page/hit_count.h"
#include "editor/form_editor.h"

class QComboBox;
class QLabel;
class QLayout;
class QSplitter;

namespace norvik::desktop {

class PageView;

/// The tools above, the panes side by side with a divider that can be moved; the right one comes
/// with its first file. What is typed into the find box is shaded and counted in the current pane.
class EditorWindow : public FormWindow {
 public:
  EditorWindow(const WindowParts& parts, editor::FormEditor& form);

  void sync() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLayout* makeTools();
  QWidget* makeFindRow();
  QWidget* makeColumn(editor::Side side);
  QLayout* makeFoot();
  void fillFindBox();
  void makeShortcuts();
  void press(front::Control& picture);
  void goToFindBox();
  void showHits();
  void markCurrent();
  PageView& view(editor::Side side) {
    return side == editor::Side::left ? *leftView_ : *rightView_;
  }

  editor::FormEditor& form_;
  HitCount count_;
  QSplitter* panes_ = nullptr;
  PageView* leftView_ = nullptr;
  PageView* rightView_ = nullptr;
  QLabel* leftName_ = nullptr;
  QLabel* rightName_ = nullptr;
  QWidget* rightColumn_ = nullptr;
  QComboBox* findBox_ = nullptr;
  QLabel* hits_ = nullptr;
};

}  // namespace norvik::desktop
