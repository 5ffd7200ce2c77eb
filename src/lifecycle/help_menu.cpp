#include "lifecycle/help_menu.h"

#include "lifecycle/addresses.h"
#include "text/columns.h"
#include "text/line_reader.h"
#include "text/number_text.h"

namespace norvik::lifecycle {

namespace {

constexpr std::string_view kProgram = "Norvik";

void showManual(front::Session& session) {
  const std::string folder = session.opening.inProgramFolder("\\NorvikManual");
  const std::string manual = folder + "\\NorvikWelcome.htm";
  if (session.disk.exists(manual)) {
    session.front.openDocument("open", manual, folder);
  } else {
    session.front.openDocument("Open", kManualPage.in(session.settings), "");
  }
}

/// Whether a version has another first digit than the installed one, or the higher last two digits.
bool isNewer(std::string_view version, std::string_view installed) {
  constexpr std::size_t kMinorDigits = 2;
  if (text::leftmost(version, 1) != text::leftmost(installed, 1)) return true;
  return text::value(text::rightmost(version, kMinorDigits)) >
         text::value(text::rightmost(installed, kMinorDigits));
}

void compareVersions(front::Session& session, const std::string& version) {
  const std::string& caption = session.opening.caption();
  const std::string_view installed = text::after(caption, " ");
  if (version == installed) {
    session.front.messageBox("Your version of Norvik is up to date!", kProgram, front::kOk);
  } else if (isNewer(version, installed)) {
    session.front.messageBox("Your version of Norvik can be updated, the current version is ver " +
                                 version +
                                 " See details on the News Page displayed in your browser.",
                             kProgram, front::kOk);
  }
}

void checkVersion(front::Session& session) {
  const std::string file = session.opening.inProgramFolder("\\NorvikVer.txt");
  session.hourglass(true);
  const front::Fetched fetched = session.front.fetch(kVersionText.in(session.settings), file);
  if (fetched.error != 0) {
    session.hourglass(false);
    session.front.messageBox(std::to_string(fetched.error) + " " + fetched.description, "Error!",
                             front::kCritical);
    return;
  }
  session.front.openDocument("Open", kNewsPage.in(session.settings), "");
  const bool empty = !session.disk.exists(file) || session.disk.size(file) == 0;
  session.hourglass(false);
  if (empty) {
    session.front.messageBox("Info retrieval failed.", "Error!", front::kCritical);
    return;
  }
  compareVersions(session, std::string{text::LineReader(session.disk, file).field()});
}

void showAbout(front::Session& session) {
  session.front.messageBox("Norvik " + session.settings.get("Startup", "Ver", "0") +
                               "\r\nA workbench for Poser figure files.",
                           "About Norvik", front::kOk);
}

}  // namespace

void wireHelpMenu(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.MenuHelp.clicked.add([&session] { showManual(session); });
  opening.menuWebTutorials.clicked.add(
      [&session] { session.front.openDocument("Open", kTutorialsPage.in(session.settings), ""); });
  opening.menuCheckVer.clicked.add([&session] { checkVersion(session); });
  opening.MenuAbout.clicked.add([&session] { showAbout(session); });
}

}  // namespace norvik::lifecycle
