#include "install/install_menu.h"

#include "front/poser_location.h"
#include "install/cr2_files.h"
#include "install/staged_figure.h"
#include "install/staging.h"

namespace norvik::install {

namespace {

void startInstalling(front::Session& session, InstallerView& view) {
  front::readPoserLocation(session);
  const auto figure = stagedFigure(session);
  if (!figure) return;
  const std::string path = inFolder(stagingFolder(session.opening), *figure);
  view.open(path);
  try {
    ListCR2Files(session, path);
  } catch (...) {
    view.close();
    throw;
  }
}

}  // namespace

void InstallerView::open(const std::string& cr2) {
  if (!open_) objFile_ = opening_.LabelOBJFileName.caption();
  open_ = true;
  cr2_ = cr2;
  opening_.LabelOBJFileName.setCaption(cr2);
  before_.hide({&opening_.LabelMainOBJPath, &opening_.TextMainOBJ,      &opening_.LabelPropOBJs,
                &opening_.ListPropObj,      &opening_.LabelMainTex,     &opening_.TextMainTex,
                &opening_.LabelMainBump,    &opening_.TextMainBump,     &opening_.LabelMainTrans,
                &opening_.TextMainTrans,    &opening_.LabelMainReflect, &opening_.TextMainReflect,
                &opening_.LabelMaterials,   &opening_.ListMaterials,    &opening_.LabelBodyParts,
                &opening_.ListActors,       &opening_.ListChannels,     &opening_.ListAllTexMaps,
                &opening_.ListTwistRemove,  &opening_.ListTwistRestore});
  opening_.ListboxListCR2Files.show();
}

void InstallerView::close() {
  opening_.ListboxListCR2Files.hide();
  opening_.PicturePrintCR2Files.hide();
  opening_.PictureInstallCR2.hide();
  opening_.PictureCR2InstallCancel.hide();
  if (!open_) return;
  open_ = false;
  // Another file may have been opened meanwhile.
  front::Label& file = opening_.LabelOBJFileName;
  if (file.caption() == cr2_) file.setCaption(objFile_);
  // Beside a mesh nothing of the figure is on view.
  if (file.visible()) before_ = {};
  before_.restore();
}

void wireInstallMenu(front::Session& session, InstallerView& view) {
  session.opening.MenuInstallCR2.clicked.add([&session, &view] { startInstalling(session, view); });
  session.opening.PictureCR2InstallCancel.clicked.add([&view] { view.close(); });
}

}  // namespace norvik::install
