#include "install/cr2_files.h"

#include "figure/check_sgi.h"
#include "front/print_lines.h"
#include "text/columns.h"
#include "text/line_reader.h"

#include <algorithm>
#include <array>

namespace norvik::install {

namespace {

using text::anywhere;

/// Geometry, pictures and bump maps. They count wherever they stand in a line.
constexpr std::array<std::string_view, 8> kEndings{".obj", ".bmp", ".png", ".gif",
                                                   ".bum", ".tif", ".jpg", ".pict"};

bool namesFile(std::string_view line) {
  const std::string small = text::lowered(line);
  return std::any_of(kEndings.begin(), kEndings.end(),
                     [&](std::string_view ending) { return text::holds(small, ending); });
}

void listLines(text::LineReader& in, front::ListBox& list) {
  // What follows a point in a number is a digit.
  static const text::LineFilter mayName{anywhere(".o"), anywhere(".O"), anywhere(".b"),
                                        anywhere(".B"), anywhere(".p"), anywhere(".P"),
                                        anywhere(".g"), anywhere(".G"), anywhere(".t"),
                                        anywhere(".T"), anywhere(".j"), anywhere(".J")};
  std::string listed;
  while (!in.atEnd()) {
    in.passLines(mayName);
    if (in.atEnd()) return;
    const std::string_view line = in.line();
    if (line == listed || !namesFile(line)) continue;
    list.add(line);
    listed = line;
  }
}

void printFiles(front::Session& session) {
  constexpr std::size_t kDate = 10;
  const front::Opening& opening = session.opening;
  const std::string date{text::leftmost(session.front.now(), kDate)};
  std::vector<std::string> lines{"   Files Used in " +
                                 std::string{text::fileTitle(opening.LabelOBJFileName.caption())} +
                                 " -- " + date};
  const auto& files = opening.ListboxListCR2Files.items();
  lines.insert(lines.end(), files.begin(), files.end());
  front::printLines(session.front, lines, 1);
}

}  // namespace

void ListCR2Files(front::Session& session, std::string path) {
  front::Opening& opening = session.opening;
  opening.ListboxListCR2Files.clear();
  figure::CheckSGI(session, path);
  session.hourglass(true);
  {
    text::LineReader in(session.disk, path);
    listLines(in, opening.ListboxListCR2Files);
  }
  opening.PicturePrintCR2Files.show();
  opening.PictureInstallCR2.show();
  opening.PictureCR2InstallCancel.show();
  session.hourglass(false);
  if (opening.ListboxListCR2Files.count() == 0) {
    session.front.messageBox(
        "No external files called in this CR2, but you can still install the CR2 itself.", "Note!",
        front::kOk);
  }
}

void wirePrintCR2Files(front::Session& session) {
  session.opening.PicturePrintCR2Files.clicked.add([&session] { printFiles(session); });
}

}  // namespace norvik::install
