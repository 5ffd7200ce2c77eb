#include "builders/figures/master_cr2.h"

#include "front/finished_file.h"
#include "text/line_copy.h"
#include "text/line_search.h"

#include <array>

namespace norvik::builders {

namespace {

using text::anywhere;

/// A figure of Poser's library and its master.
struct LibraryFigure {
  front::MenuEntry front::Opening::*entry;
  std::string_view folder;
  std::string_view file;
  std::string_view master;
};
using O = front::Opening;
constexpr auto kLibrary = std::to_array<LibraryFigure>({
    {&O::MenuP3Male, "People\\", "P3 Nude Man.cr2", "P3MaleMasterCR2.cr2"},
    {&O::MenuP3Female, "People\\", "P3 Nude Woman.cr2", "P3FemaleMasterCR2.cr2"},
    {&O::MenuP4Male, "Clothing- male\\", "Tuxedo.cr2", "P4MaleMasterCR2.cr2"},
    {&O::MenuP4Female, "Clothing-Female\\", "catsuit.cr2", "P4FemaleMasterCR2.cr2"},
    {&O::MenuVic, "Zygote People\\", "Victoria.cr2", "VictoriaMasterCR2.cr2"},
});

/// What a master is made of. `shown` is its name in the closing box.
struct Work {
  std::string source;
  std::string master;
  std::string shown;
  bool dropsParameters = false;
};

std::string readThrough(text::LineReader& in, std::string_view token) {
  return text::passThrough(in, {anywhere(token)}, text::holding(token));
}

/// Copies up to the first line with "material", whatever it is. From a morph on everything goes up
/// to the next "twist", be it another body part's, which stays.
void copyHierarchy(text::LineReader& in, text::LineWriter& out, bool dropsParameters) {
  text::LineFilter stops{anywhere("material"), anywhere("targetGeom"), anywhere("valueParm")};
  for (;;) {
    text::copyLines(in, out, stops);
    std::string line{in.line()};
    if (text::holds(line, "material")) return;
    if (dropsParameters && text::holds(line, "valueParm")) {
      // Its last header line stays, so that the braces of the master do not match.
      line = readThrough(in, "interpStyleLocked");
    }
    if (text::holds(line, "targetGeom")) line = readThrough(in, "twist");
    out.line(line);
  }
}

/// Writes the end of the figure: how it is displayed, and three lines more.
void copyEnd(text::LineReader& in, text::LineWriter& out) {
  constexpr int kLinesBehind = 3;
  out.line(readThrough(in, "displayMode USEPARENT"));
  for (int i = 0; i < kLinesBehind; ++i) out.line(in.line());
  out.line("}");
}

void makeMaster(front::Session& session, const Work& work) {
  if (session.disk.exists(work.master)) {
    session.front.messageBox(
        "You already have a MasterCR2 file for this!  If you wish to make another, move the "
        "present one from this directory.",
        "Note!", front::kOk);
    return;
  }
  session.hourglass(true);
  text::LineReader in(session.disk, work.source);
  text::LineWriter out(session.disk, work.master);
  copyHierarchy(in, out, work.dropsParameters);
  copyEnd(in, out);
  out.close();
  session.hourglass(false);
  session.front.tellOf({.path = work.master});
  session.front.messageBox("You have just created a Master CR2 file called " + work.shown, "Note!",
                           front::kOk);
}

Work libraryWork(const front::Session& session, const LibraryFigure& figure) {
  std::string folder = session.settings.get("Startup", "PLoc", "0");
  folder.append("Runtime\\Libraries\\Characters\\").append(figure.folder);
  const std::string master{figure.master};
  return {folder + std::string{figure.file}, folder + master, master};
}

Work paneWork(const front::Session& session, bool dropsParameters) {
  const std::string& source = session.opening.LabelFileNameForEditor.caption();
  const std::string master = std::string{text::before(source, ".")} + "Master.cr2";
  return {source, master, master, dropsParameters};
}

}  // namespace

void wireMasterCr2(front::Session& session) {
  front::Opening& opening = session.opening;
  for (const LibraryFigure& figure : kLibrary) {
    (opening.*figure.entry).clicked.add([&session, &figure] {
      makeMaster(session, libraryWork(session, figure));
    });
  }
  opening.MenuAnyMasterStandard.clicked.add(
      [&session] { makeMaster(session, paneWork(session, false)); });
  opening.MenuAnyMasterNoFBM.clicked.add(
      [&session] { makeMaster(session, paneWork(session, true)); });
}

}  // namespace norvik::builders
