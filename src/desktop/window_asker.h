#pragma once
// The questions as boxes and dialogs on the screen.

#include "desktop/asker.h"

namespace norvik::desktop {

class WindowAsker : public Asker {
 public:
  front::Answer box(const QString& title, const QString& text, int style) override;
  front::Answer boxWithChanges(const QString& title, const QString& text, int style,
                               const ComparedFiles& files) override;
  std::optional<QString> file(const File& file) override;
  std::optional<front::Colour> colour(front::Colour initial) override;
  bool printer(QPrinter& printer) override;
};

}  // namespace norvik::desktop
