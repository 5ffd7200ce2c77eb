#pragma once
// The operator's notes on the screen.

#include "desktop/forms/form_windows.h"
#include "editor/form_notes.h"

namespace norvik::desktop {

/// The note file as one page, with the buttons that save and close it.
class NotesWindow : public FormWindow {
 public:
  NotesWindow(const WindowParts& parts, editor::FormNotes& form);
};

/// A small form without a frame and with a hole in it, as large as the mesh is on the 3D view.
class HoleWindow : public FormWindow {
 public:
  HoleWindow(const WindowParts& parts, editor::FormHole& form);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  front::Session& session_;
};

}  // namespace norvik::desktop
