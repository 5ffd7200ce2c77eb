// The reads that an open and the panes need, the repairs, and Save.

#include "bench_desk.h"
#include "figure/actor_lister.h"
#include "figure/bracket_count.h"
#include "figure/check_sgi.h"
#include "figure/line_ending_repair.h"
#include "figure/map_lister.h"
#include "figure/material_lister.h"
#include "figure/open_file.h"
#include "figure/path_lister.h"
#include "figure/path_pass.h"
#include "figure/save.h"
#include "figure/space_chopper.h"
#include "install/cr2_files.h"
#include "install/figure_files.h"
#include "pass_groups.h"
#include "text/line_reader.h"

namespace norvik::bench {

namespace {

void readLines(Bench& bench) {
  text::LineReader in(bench.disk, bench.path);
  std::size_t bytes = 0;
  while (!in.atEnd()) bytes += in.line().size();
  mustHold(bytes > 0, "no lines");
}

void readFields(Bench& bench) {
  text::LineReader in(bench.disk, bench.path);
  std::size_t bytes = 0;
  while (!in.atEnd()) bytes += in.field().size();
  mustHold(bytes > 0, "no fields");
}

void repairLineEnds(Bench& bench) {
  text::ByteReader source(bench.disk, bench.path);
  text::LineWriter scratch(bench.disk, "C:\\f.new");
  figure::LineEndingRepair(source, scratch);
  scratch.close();
}

void passPaths(Bench& bench) {
  figure::PathSlots slots;
  slots.texture = "\"C:Poser:Runtime:textures:new.bmp\"";
  figure::passPaths(bench.session, slots);
}

void save(Bench& bench) {
  bench.opening.TextMainTex.setText("\"C:Poser:Runtime:textures:new.bmp\"");
  bench.opening.LabelMainTex.setFore(front::kPathEdited);
  bench.choose("saved.cr2");
  figure::saveFile(bench.session);
  mustHold(bench.disk.exists("C:\\saved.cr2"), "nothing saved");
}

void saveAs(Bench& bench) {
  bench.choose("saved.cr2");
  figure::saveFileAs(bench.session);
  mustHold(bench.disk.exists("C:\\saved.cr2"), "nothing saved");
}

void openWhole(Bench& bench) {
  bench.opening.SkipOpenDialog = true;
  figure::openFile(bench.session);
  mustHold(bench.opening.ListActors.count() > 0, "no actors");
  mustHold(bench.opening.ListMaterials.count() > 0, "no materials");
  mustHold(bench.opening.ListChannels.count() > 2, "no channels");
  mustHold(!bench.opening.TextMainTex.text().empty(), "no texture");
}

void listMapLocations(Bench& bench) {
  bench.opening.LabelFileNameForEditor.setCaption(bench.path);
  install::listFigureFiles(bench.session, bench.opening.ListboxListCR2Files);
}

void countBrackets(Bench& bench) {
  text::LineReader in(bench.disk, bench.path);
  mustHold(figure::countBrackets(in).left > 1, "no brackets");
}

}  // namespace

std::vector<Pass> figurePasses() {
  using enum Kind;
  using enum Figure;
  return {pass("whole-line read", read, plain, readLines),
          pass("field read", read, plain, readFields),
          pass("CheckSGI of a conventional file", read, plain,
               [](Bench& bench) { figure::CheckSGI(bench.session, bench.path); }),
          pass("ListTheActors", read, plain,
               [](Bench& bench) { figure::ListTheActors(bench.session, bench.path); }),
          pass("OpenCR2", read, plain,
               [](Bench& bench) { figure::OpenCR2(bench.session, bench.path); }),
          pass("MatLister", read, plain,
               [](Bench& bench) { figure::MatLister(bench.session, bench.path); }),
          pass("FindMapLocs", read, plain,
               [](Bench& bench) { figure::FindMapLocs(bench.session, bench.path); }),
          pass("bracket count", read, plain, countBrackets),
          pass("LineEndingRepair, LF file", rewrite, lfEnds, repairLineEnds),
          pass("SpaceChopper, one line", rewrite, oneBlank,
               [](Bench& bench) { figure::SpaceChopper(bench.session, bench.path); }),
          pass("SpaceChopper, every line", rewrite, blanks,
               [](Bench& bench) { figure::SpaceChopper(bench.session, bench.path); }),
          pass("path pass", substitution, plain, passPaths),
          pass("Save", substitution, plain, save),
          pass("Save As", substitution, plain, saveAs),
          pass("open", open, plain, openWhole),
          pass("list of the files of a CR2", read, plain,
               [](Bench& bench) { install::ListCR2Files(bench.session, bench.path); }),
          pass("list of the files to remove", read, plain, listMapLocations)};
}

}  // namespace norvik::bench
