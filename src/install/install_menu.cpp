#include "install/install_menu.h"

#include "front/poser_location.h"
#include "install/cr2_files.h"
#include "install/staging.h"
#include "install/unpack.h"

#include <optional>

namespace norvik::install {

namespace {

constexpr std::string_view kStartup = "Startup";
constexpr std::string_view kUnset = "0";

std::vector<std::string> waitingFigures(const front::Session& session) {
  return session.disk.matching(inFolder(stagingFolder(session.opening), "*.cr2"));
}

/// Asks for the unzipper if none was ever named. False on a cancel. An empty name stands for the
/// program's own unpacking.
bool settleUnzipper(front::Session& session) {
  if (session.settings.get(kStartup, "WZLoc", kUnset) != kUnset) return true;
  front::CommonDialog& dialog = session.opening.CommonDialogFindPoser;
  if (!dialog.open(session.front, session.disk.currentFolder(), "Please Locate WinZip.exe",
                   {"", "All files|*.*",
                    "This is the program that unpacks zip files. Norvik can do it as well.",
                    "Unpack with Norvik"})) {
    return false;
  }
  session.settings.set(kStartup, "WZLoc", dialog.fileName());
  return true;
}

/// Asks for Poser if it was never told. False on a cancel.
bool settlePoser(front::Session& session) {
  if (session.settings.get(kStartup, "PLoc", kUnset) != kUnset) return true;
  session.opening.CommonDialogFindPoser.setFileName("poser.exe");
  if (!front::askForPoser(session, "Please Locate Poser.exe")) return false;
  front::storePoserLocation(session);
  front::readPoserLocation(session);
  return true;
}

/// What to say of a zip file that Norvik could not unpack; empty if it could.
std::string_view complaint(Unpacked outcome) {
  switch (outcome) {
    case Unpacked::noZip:
      return "The file cannot be read as a zip file. Nothing was unpacked.";
    case Unpacked::tooMuch:
      return "The zip file holds more than Norvik unpacks, which is 4 GB or 65,535 files. Nothing "
             "was unpacked.";
    case Unpacked::notSupported:
      return "This Norvik was built without libarchive and cannot unpack zip files. An unzipper of "
             "your own can be named in the settings.";
    case Unpacked::done:
      break;
  }
  return {};
}

/// Unpacks without an outside program. What a window says about it when no CR2 is found.
std::string unpackHere(front::Session& session, const std::string& zip) {
  session.hourglass(true);
  const Unpacked outcome = unpackZip(session, zip, stagingFolder(session.opening));
  session.hourglass(false);
  return std::string{complaint(outcome)};
}

std::string unpack(front::Session& session, const std::string& zip) {
  const std::string unzipper = session.settings.get(kStartup, "WZLoc", kUnset);
  if (unzipper.empty()) return unpackHere(session, zip);
  const std::string staging = stagingFolder(session.opening);
  const auto run = session.disk.exists(unzipper) ? session.front.runToEnd(unzipper, {zip, staging})
                                                 : front::ProgramRun::notStarted;
  if (run == front::ProgramRun::leftToCaller) return unpackHere(session, zip);
  if (run == front::ProgramRun::notStarted) {
    session.front.messageBox(
        "Can't find WinZip, you will need to unzip cr2install\\" +
            std::string{text::fileTitle(zip)} +
            " yourself. Remember, do NOT unzip with folders, all files need to "
            "be in the CR2Install folder.",
        "Error!", front::kCritical);
  }
  return {};
}

/// The CR2 that is to be installed, out of a zip file that the operator picks; none if it has none,
/// or on a cancel.
std::optional<std::string> unpackedFigure(front::Session& session) {
  if (!settleUnzipper(session) || !settlePoser(session)) return std::nullopt;
  front::CommonDialog& dialog = session.opening.CommonDialogZip;
  if (!dialog.open(session.front, stagingFolder(session.opening), {},
                   {"Which zip file holds the figure?", "Zip files|*.zip|All files|*.*", ""})) {
    return std::nullopt;
  }
  const std::string complaint = unpack(session, dialog.fileName());
  const std::vector<std::string> figures = waitingFigures(session);
  if (!figures.empty()) return figures.front();
  const front::Caution caution(session, complaint);
  session.front.messageBox("No CR2 File in this zip file, or it has not been unzipped!", "Error!",
                           front::kCritical);
  return std::nullopt;
}

std::optional<std::string> stagedFigure(front::Session& session) {
  const std::vector<std::string> figures = waitingFigures(session);
  if (figures.empty()) return unpackedFigure(session);
  if (figures.size() > 1) {
    session.front.messageBox(
        "There is more than one CR2 in the cr2install folder, you will need to run this tool more "
        "than once to install them all.  This file will be installed first: " +
            figures.front(),
        "Error!", front::kCritical);
  }
  return figures.front();
}

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
