#pragma once
// Renamer laid out: the files on the left; on the right the direction, what would change, and the
// picture that the file's name is dropped on.

#include "desktop/forms/form_windows.h"
#include "dials/renamer_form.h"

#include <cstdint>
#include <string>

class QLabel;
class QPushButton;
class QRadioButton;
class QTreeWidget;

namespace norvik::desktop {

/// The name is dragged to the picture, or the button Rename is pressed, which is the same.
class RenamerWindow : public FormWindow {
 public:
  RenamerWindow(const WindowParts& parts, dials::Renamer& form);

  void rest() override;

 private:
  QLayout* makeFiles();
  QLayout* makeDirections();
  QLayout* makeTarget();
  QLayout* makeButtons();
  void showPreview();
  void showUndo();
  void undo();

  front::Session& session_;
  dials::Renamer& form_;
  QRadioButton* friendly_ = nullptr;
  QRadioButton* getSR_ = nullptr;
  QPushButton* undo_ = nullptr;
  QLabel* outcome_ = nullptr;
  QTreeWidget* changes_ = nullptr;
  std::string previewOf_;  ///< the file, the direction and the passes that the preview is of
};

}  // namespace norvik::desktop
