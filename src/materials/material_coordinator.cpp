#include "materials/material_coordinator.h"

#include "figure/caption.h"
#include "figure/check_sgi.h"
#include "figure/save.h"
#include "front/finished_file.h"
#include "materials/coordinated_lists.h"
#include "materials/coordinator_passes.h"
#include "text/columns.h"

namespace norvik::materials {

namespace {

constexpr std::string_view kResult = "\\CR2.tmp";
constexpr std::string_view kSecondScratch = "\\CR2-1.tmp";

void note(front::Session& session, std::string_view text) {
  session.front.messageBox(text, "Note!", front::kOk);
}

/// Where the figure's OBJ should be. With a location that ends in its backslash that one is
/// doubled, which the disk forgives.
std::string objPath(front::Session& session) {
  return session.settings.get("Startup", "PLoc", "0") + "\\Runtime\\Geometries\\" +
         text::replaced(session.opening.TextMainOBJ.text(), ':', '\\');
}

/// Fills the three lists. False when there is no OBJ.
bool compare(front::Session& session, FormMatCoord& form, const std::string& path) {
  front::Opening& opening = session.opening;
  session.hourglass(true);
  listFigureMaterials(form, session.disk, path);
  opening.LabelOBJFileName.setCaption(objPath(session));
  const bool found = listObjMaterials(form, session.disk, opening.LabelOBJFileName.caption());
  session.hourglass(false);
  if (found) {
    compareMaterials(form);
  } else {
    session.front.messageBox("OBJ not where CR2 file expects it to be.", "Error!", front::kOk);
  }
  return found;
}

/// Leaves the finished figure in "\CR2.tmp", whether anything changed or not.
void writeResult(front::Session& session, const FormMatCoord& form, const std::string& path,
                 bool withoutPresets) {
  const std::string result = session.opening.inProgramFolder(kResult);
  const std::string second = session.opening.inProgramFolder(kSecondScratch);
  session.hourglass(true);
  removeMaterials(session.disk, path, result, form.ListCR2Mat.items(), withoutPresets);
  addMaterials(session.disk, result, second, form.ListMatsNotInCR2.items());
  session.disk.replace(second, result);
  session.hourglass(false);
}

/// Shows the lists and says what was done. Whether there is anything to save.
bool report(front::Session& session, FormMatCoord& form) {
  form.ListMatsNotInCR2.show();
  session.load(form);
  const bool removed = form.ListCR2Mat.count() > 0;
  const bool added = form.ListMatsNotInCR2.count() > 0;
  if (removed) {
    note(session,
         "The materials on the left were not listed in the OBJ and were removed from the CR2.");
  }
  if (added) {
    note(session,
         "The materials in the center list were not listed in the CR2 and were added to the CR2.");
  }
  if (!removed && !added) note(session, "There are no extra materials in the CR2.");
  return removed || added;
}

void saveResult(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.PendingTempSave = true;
  {
    const front::ResultOffer offer(session, opening.inProgramFolder(kResult),
                                   opening.LabelFileNameForEditor.caption());
    figure::saveFileAs(session);
  }
  if (opening.PendingTempSave) return;
  session.front.tellOf({.path = opening.DestPath});
  // The source pane's labels stay, so that later tools take the old file for an open source.
  opening.LabelFileName.setCaption(figure::shortenedPath(opening.DestPath));
  opening.LabelFileNameForEditor.setCaption(opening.DestPath);
  opening.LabelFileSize.setCaption(figure::sizeInBytes(session.disk, opening.DestPath));
}

}  // namespace

void MatCoordinator(front::Session& session, FormMatCoord& form) {
  std::string path = session.opening.LabelFileNameForEditor.caption();
  if (text::extension(path) != "cr2") {
    session.front.messageBox("CR2files only!", "Error!", front::kOk);
    return;
  }
  figure::CheckSGI(session, path);
  const front::Answer presets =
      session.front.messageBox("Remove preset materials?", "Alert!", front::kYesNo);
  form.clearLists();
  text::ignoringErrors(
      [&] { session.disk.remove(session.opening.inProgramFolder(kSecondScratch)); });
  if (!compare(session, form, path)) return;
  writeResult(session, form, path, presets == front::Answer::yes);
  if (report(session, form)) saveResult(session);
}

void wireMaterialCoordinator(front::Session& session, FormMatCoord& form) {
  session.opening.MenuCoordMat.clicked.add([&session, &form] { MatCoordinator(session, form); });
}

}  // namespace norvik::materials
