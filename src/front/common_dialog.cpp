#include "front/common_dialog.h"

#include "text/disk.h"

namespace norvik::front {

std::string_view CommonDialog::fileTitle() const {
  return text::fileTitle(fileName_);
}

namespace {

std::string_view titleOf(FileDialog::Kind kind, std::string_view title, std::string_view purpose) {
  if (!title.empty()) return title;
  if (!purpose.empty()) return purpose;
  return kind == FileDialog::Kind::save ? "Save As" : "Open";
}

}  // namespace

bool CommonDialog::open(FrontEnd& front, std::string_view folder, std::string_view title,
                        const DialogWords& words) {
  return show(front, FileDialog::Kind::open, title, folder, words);
}

bool CommonDialog::save(FrontEnd& front, std::string_view folder, std::string_view proposed,
                        std::string_view title, const DialogWords& words) {
  fileName_ = proposed;
  return show(front, FileDialog::Kind::save, title, folder, words);
}

bool CommonDialog::show(FrontEnd& front, FileDialog::Kind kind, std::string_view title,
                        std::string_view folder, const DialogWords& words) {
  const auto chosen =
      front.fileDialog({kind, name_, std::string{titleOf(kind, title, words.purpose)},
                        words.filter.empty() ? filter_ : std::string{words.filter},
                        std::string{folder}, fileName_, std::string{words.hint}});
  if (chosen) fileName_ = *chosen;
  return chosen.has_value();
}

}  // namespace norvik::front
