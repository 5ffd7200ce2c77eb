#include "install/installation.h"

#include "install/move_plan.h"
#include "install/staging.h"

namespace norvik::install {

namespace {

/// Moves a file, by whatever name it goes; it stays where it is if it cannot.
bool moved(text::Disk& disk, const std::string& from, const std::string& folder,
           const std::string& target) {
  return text::ignoringErrors([&] {
    if (!disk.folderExists(folder)) makeEveryLevel(disk, folder);
    disk.rename(from, target);
  });
}

/// The figure, the mesh of its name and its picture in the library, before all else.
void moveFirst(text::Disk& disk, const InstallPlaces& places) {
  moved(disk, inFolder(places.staging, places.figure), places.library,
        inFolder(places.library, places.figure));
  const std::string mesh = places.named("obj");
  if (!places.geometry.empty() && disk.exists(inFolder(places.staging, mesh))) {
    moved(disk, inFolder(places.staging, mesh), places.geometry, inFolder(places.geometry, mesh));
  }
  const std::vector<std::string> pictures = disk.matching(inFolder(places.staging, "*.rsr"));
  if (!pictures.empty()) {
    moved(disk, inFolder(places.staging, pictures.front()), places.library,
          inFolder(places.library, pictures.front()));
  }
}

/// Goes through what is left in the staging folder; what finds no place stays in the list.
void moveRest(text::Disk& disk, const InstallPlaces& places, front::ListBox& list) {
  list.clear();
  for (const std::string& name : disk.matching(inFolder(places.staging, "*.*"))) list.add(name);
  for (int i = 0; i < list.count();) {
    const std::string name{list.item(i)};
    const StagedMove move = moveOf(places, name);
    const bool done = move.kind == StagedMove::Kind::leave ||
                      (move.kind == StagedMove::Kind::move &&
                       moved(disk, inFolder(places.staging, name), move.folder, move.target));
    if (done) {
      list.remove(i);
    } else {
      ++i;
    }
  }
}

void report(front::Session& session, const InstallPlaces& places, front::ListBox& list) {
  if (list.count() == 0) return;
  list.show();
  const front::Answer answer = session.front.messageBox(
      "These files are not listed in the CR2, or have already been installed, or are related to a "
      "second CR2 in the folder, or are simply unrelated files in this directory. You may place "
      "them manually. Print the list?",
      "Alert!", front::kYesNo);
  if (answer != front::Answer::yes) return;
  std::vector<std::string> lines{"Files Not Installed -- " + places.figure};
  lines.insert(lines.end(), list.items().begin(), list.items().end());
  session.front.print("Courier", lines, 1);
}

void install(front::Session& session, FormCR2Install& form, InstallerView& view) {
  front::Opening& opening = session.opening;
  const InstallPlaces places = InstallPlaces::of(opening, form.DirCR2Install.path());
  session.hourglass(true);
  moveFirst(session.disk, places);
  moveRest(session.disk, places, form.ListCR2Install);
  session.hourglass(false);
  report(session, places, form.ListCR2Install);
  form.ListCR2Install.clear();
  form.ListCR2Install.hide();
  session.front.messageBox("Your CR2 has been installed!", "Success!", front::kOk);
  session.unload(form);
  opening.LabelRtDir.setCaption("");
  opening.LabelTexPathCR2Install.setCaption("");
  opening.LabelObjPathCR2Install.setCaption("");
  opening.ListboxListCR2Files.clear();
  view.close();
}

}  // namespace

void wireInstallation(front::Session& session, FormCR2Install& form, InstallerView& view) {
  form.DirCR2Install.key.add([&session, &form, &view](const std::string& key) {
    if (key == "Enter") install(session, form, view);
  });
}

}  // namespace norvik::install
