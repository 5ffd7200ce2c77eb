#include "tools/launcher.h"

#include "figure/file_kind.h"
#include "figure/open_file.h"
#include "front/load_picture.h"

#include <string>
#include <utility>
#include <vector>

namespace norvik::tools {

namespace {

/// Gives a form's value back what it held when the tool began.
class Kept {
 public:
  explicit Kept(std::string& value) : value_(value), held_(value) {}
  Kept(const Kept&) = delete;
  Kept& operator=(const Kept&) = delete;
  ~Kept() { value_ = std::move(held_); }

 private:
  std::string& value_;
  std::string held_;
};

/// The dropped figure becomes the input of the tools. What receives morphs is still the file that
/// was opened last.
void openFile(front::Session& session, std::string path) {
  using figure::FileKind;
  front::Opening& opening = session.opening;
  const FileKind kind = figure::kindOf(path);
  const bool ofTheStart = kind == FileKind::cr2 || kind == FileKind::pz3 || kind == FileKind::obj;
  if (!ofTheStart) return figure::ComStart(session, path);
  const Kept destination(opening.DestPath);
  opening.OpenedPath = std::move(path);
  figure::ComStart(session, opening.OpenedPath);
}

void showPicture(front::Session& session, FormLaunch& form, const std::string& path) {
  if (auto picture = front::loadPicture(session, path)) {
    form.showPicture(std::move(*picture));
  } else {
    form.clearPicture();
    form.printed = "Invalid File Format!";
  }
}

}  // namespace

void wireLauncher(front::Session& session, FormLaunch& form) {
  session.opening.MenuLauncher.clicked.add([&session, &form] { session.load(form); });
  form.loading.add([&form] { form.restoreStart(); });
  form.Picture1.filesDropped.add([&session, &form](const std::vector<std::string>& files) {
    if (form.Check1.value()) {
      showPicture(session, form, files.front());
    } else {
      ++form.opened;
      openFile(session, files.front());
    }
  });
}

}  // namespace norvik::tools
