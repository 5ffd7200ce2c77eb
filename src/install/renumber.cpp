#include "install/renumber.h"

#include "install/staging.h"
#include "text/columns.h"

namespace norvik::install {

namespace {

constexpr std::size_t kDigits = 3;

std::string threeDigits(int number) {
  std::string digits = std::to_string(number);
  if (digits.size() < kDigits) digits.insert(0, kDigits - digits.size(), '0');
  return digits;
}

void list(const text::Disk& disk, FormRenumber& form) {
  form.File1.setPath(form.Dir1.path());
  form.File1.list(disk);
}

void show(const text::Disk& disk, FormRenumber& form, std::string_view pattern) {
  form.File1.setPattern(pattern);
  list(disk, form);
}

void renumber(front::Session& session, FormRenumber& form) {
  const std::string folder = form.Dir1.path();
  const std::vector<Renumbered> sequence = sequenceIn(session.disk, folder);
  if (sequence.empty()) {
    session.front.messageBox("No #1 file in this folder!", "Error!", front::kCritical);
    return;
  }
  for (const Renumbered& file : sequence) {
    if (file.from == file.to) continue;
    session.disk.rename(inFolder(folder, file.from), inFolder(folder, file.to));
  }
  session.front.messageBox(
      "Finished, files numbered 001 to " + threeDigits(static_cast<int>(sequence.size())), "Done!",
      front::kExclamation);
}

}  // namespace

std::vector<Renumbered> sequenceIn(const text::Disk& disk, const std::string& folder) {
  for (const char* const extension : {".obj", ".bmp"}) {
    std::vector<Renumbered> sequence;
    for (int number = 1; disk.exists(inFolder(folder, std::to_string(number) + extension));
         ++number) {
      sequence.push_back({std::to_string(number) + extension, threeDigits(number) + extension});
    }
    if (!sequence.empty()) return sequence;
  }
  return {};
}

void wireRenumber(front::Session& session, FormRenumber& form) {
  text::Disk& disk = session.disk;
  session.opening.menuRenumberFiles.clicked.add([&session, &form] { session.load(form); });
  form.loading.add([&disk, &form] {
    form.restoreStart();
    form.Dir1.setPath(disk.currentFolder());
    form.Drive1.setPath(text::raised(text::leftmost(disk.currentFolder(), 2)));
    show(disk, form, "*.*");
  });
  form.Dir1.changed.add([&disk, &form] { list(disk, form); });
  form.OptionBMP.clicked.add([&disk, &form] { show(disk, form, "*.bmp"); });
  form.OptionOBJ.clicked.add([&disk, &form] { show(disk, form, "*.obj"); });
  form.CommandGo.clicked.add([&session, &disk, &form] {
    try {
      renumber(session, form);
    } catch (const text::FileError&) {
      // What was renamed in front of the error stays so.
      list(disk, form);
      throw;
    }
    list(disk, form);
  });
}

}  // namespace norvik::install
