#include "install/staged_figure.h"

#include "front/further_ways.h"
#include "front/poser_location.h"
#include "install/staging.h"
#include "install/unpack.h"

#include <vector>

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
    case Unpacked::tooDense:
      return "The zip file unpacks to more than 1,100 times its own size, as no figure does. "
             "Nothing was unpacked.";
    case Unpacked::notSupported:
      return "This Norvik was built without libarchive and cannot unpack zip files. An unzipper of "
             "your own can be named in the settings.";
    case Unpacked::done:
      break;
  }
  return {};
}

/// Runs Norvik's own unpacking, with or without folders. What a window says about it when no CR2 is
/// found.
std::string unpackHere(front::Session& session, Unpacking& own, Unpacked (Unpacking::*run)()) {
  session.hourglass(true);
  const Unpacked outcome = (own.*run)();
  session.hourglass(false);
  return std::string{complaint(outcome)};
}

std::string unpack(front::Session& session, const std::string& zip, Unpacking& own) {
  const std::string unzipper = session.settings.get(kStartup, "WZLoc", kUnset);
  const auto unpackWithFolders = [&] { return unpackHere(session, own, &Unpacking::withFolders); };
  if (unzipper.empty()) return unpackWithFolders();
  const std::string staging = stagingFolder(session.opening);
  const auto run = session.disk.exists(unzipper) ? session.front.runToEnd(unzipper, {zip, staging})
                                                 : front::ProgramRun::notStarted;
  if (run == front::ProgramRun::leftToCaller) return unpackWithFolders();
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

/// The first of the CR2 files that an unpacking has left in the staging folder; none is told.
std::optional<std::string> firstOrTold(front::Session& session, const std::string& complaint) {
  const std::vector<std::string> figures = waitingFigures(session);
  if (!figures.empty()) return figures.front();
  const front::Caution caution(session, complaint);
  session.front.messageBox("No CR2 File in this zip file, or it has not been unzipped!", "Error!",
                           front::kCritical);
  return std::nullopt;
}

/// A stranger's name as far as a box has room for it.
std::string cut(const std::string& name) {
  constexpr std::size_t kRoom = 100;
  return name.size() <= kRoom ? name : "..." + name.substr(name.size() - kRoom);
}

front::FurtherWays waysOutOfFolders(const std::vector<std::string>& inside) {
  std::string text = "In the zip file the CR2 lies inside folders:\r\n\r\n" + cut(inside.front());
  if (inside.size() > 1) text += "\r\nand " + std::to_string(inside.size() - 1) + " more";
  return {
      "Install Files From CR2",
      text +
          "\r\n\r\nNorvik can unpack it flat: without its folders, so that all files lie side by "
          "side in the CR2Install folder.",
      {"Unpack &flat", "&Open the folder"}};
}

/// What else can be done about a zip file that has its CR2 inside folders.
std::optional<std::string> figureOutOfFolders(front::Session& session, const std::string& zip,
                                              Unpacking& own) {
  const std::vector<std::string> inside = figuresInFolders(session, zip);
  if (inside.empty()) return std::nullopt;
  const auto way = front::offerFurtherWays(session.front, waysOutOfFolders(inside));
  if (way == 0) return firstOrTold(session, unpackHere(session, own, &Unpacking::flat));
  if (way == 1) session.front.openDocument("open", stagingFolder(session.opening), {});
  return std::nullopt;
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
  const std::string zip = dialog.fileName();
  Unpacking own(session, zip, stagingFolder(session.opening));
  const std::string complaint = unpack(session, zip, own);
  const auto figure = firstOrTold(session, complaint);
  return figure || !complaint.empty() ? figure : figureOutOfFolders(session, zip, own);
}

}  // namespace

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

}  // namespace norvik::install
