#pragma once
// The questions as boxes and dialogs on the screen.

#include "desktop/asker.h"

namespace norvik::desktop {

class WindowAsker : public Asker {
 public:
  using Asker::box;
  front::Answer box(const Box& box) override;
  std::optional<front::Answer> repeatedBox(const Box& box) override;
  std::optional<std::size_t> way(const Box& asked, const QStringList& ways) override;
  std::optional<QString> file(const File& file) override;
  std::optional<front::Colour> colour(front::Colour initial) override;
  bool printer(QPrinter& printer) override;
  bool wantsPreview() const override { return preview_; }
  void preview(QPrinter& printer, const std::function<void(QPrinter&)>& paint) override;

 private:
  bool preview_ = false;
};

}  // namespace norvik::desktop
