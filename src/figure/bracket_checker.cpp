#include "figure/bracket_checker.h"

#include "figure/bracket_count.h"

namespace norvik::figure {

namespace {

void showTotals(front::Opening& opening, const BracketCount& total) {
  front::PictureButton& picture = total.left == total.right  ? opening.PictureBrktsOK
                                  : total.left < total.right ? opening.PictureBrktLeft
                                                             : opening.PictureBrktRight;
  picture.show();
  opening.menuFile.setEnabled(false);
  opening.MenuCR2Tools.setEnabled(false);
  opening.TimerPushpin.start();
}

void BracketChecker(front::Session& session) {
  front::Opening& opening = session.opening;
  if (opening.OpenedPath.empty()) {
    if (!opening.CommonDialog1.open(session.front, session.disk.currentFolder(), {},
                                    {"Check the brackets of a file", front::kFigureFilter})) {
      return;
    }
    opening.OpenedPath = opening.CommonDialog1.fileName();
  }
  session.hourglass(true);
  BracketCount total;
  try {
    text::LineReader in(session.disk, opening.OpenedPath);
    total = countBrackets(in);
  } catch (const text::FileError&) {
    session.hourglass(false);
    session.front.messageBox(
        "This doesn't appear to be a CR2 file, this tool will not work with PZ2 files and others.",
        "Error!", front::kCritical);
    return;
  }
  session.hourglass(false);
  if (total.missing.empty()) return showTotals(opening, total);
  session.front.messageBox(
      "Missing " + total.missing + " bracket in " + total.actor + ". Fix this and test again!",
      "Note!", front::kOk);
}

}  // namespace

void leaveBracketCheck(front::Opening& opening) {
  opening.PictureBrktsOK.hide();
  opening.PictureBrktLeft.hide();
  opening.PictureBrktRight.hide();
  opening.PicturePushPin.hide();
  opening.TimerPushpin.stop();
  opening.menuFile.setEnabled(true);
  opening.MenuCR2Tools.setEnabled(true);
}

void wireBracketChecker(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.MenuBrack.clicked.add([&session] { BracketChecker(session); });
  for (front::PictureButton* picture :
       {&opening.PictureBrktsOK, &opening.PictureBrktLeft, &opening.PictureBrktRight}) {
    // Only one of the three is on view at a time.
    picture->clicked.add([&opening] { leaveBracketCheck(opening); });
  }
  opening.TimerPushpin.expired.add([&opening] { opening.PicturePushPin.show(); });
}

}  // namespace norvik::figure
