// The surgery on dials.

#include "bench_desk.h"
#include "dials/rename_pass.h"
#include "pass_groups.h"
#include "text/line_writer.h"

namespace norvik::bench {

namespace {

constexpr const char* kLateEntry = "    lToe:1 * 5";
constexpr const char* kLateDial = "lToe:1*lToeExtra300^ 5@lToeExtra300";

void reorder(Bench& bench) {
  bench.opening.ListChannelsReorderNewOrder.add(kLateDial);
  bench.choose("reordered.cr2");
  bench.opening.PictureChannelReorderDone.released.raise({});
  mustHold(bench.disk.exists("C:\\reordered.cr2"), "nothing reordered");
}

void listAndHideDials(Bench& bench) {
  bench.opening.menuHideDialsChannels.clicked.raise();
  mustHold(bench.opening.ListHideDialsChannels.count() > 1, "no dials");
  bench.choose("hidden.cr2");
  bench.opening.CommandDialHideDone.clicked.raise();
  mustHold(bench.disk.exists("C:\\hidden.cr2"), "nothing hidden");
}

void changeTrackingSpeed(Bench& bench) {
  front::Opening& opening = bench.opening;
  opening.ListChannelsReorder.add(kLateDial);
  opening.ListChannelsReorder.choose(0);
  opening.ListChannelsReorder.clicked.raise();
  mustHold(!opening.TextTrackingSpeed.text().empty(), "no speed");
  opening.TextTrackingSpeed.setText("0.03");
  opening.TextTrackingSpeed.key.raise("Enter");
}

void mirrorMorph(Bench& bench) {
  bench.opening.PictureMirror.show();
  bench.opening.MirrorMorph = "lToeExtra300";
  bench.opening.ListActors.add(kLateEntry);
  bench.opening.ListActors.choose(0);
  bench.answers().queueBox(front::Answer::no);
  bench.opening.ListActors.doubleClicked.raise();
  mustHold(bench.disk.exists("C:\\Norvik\\mirmorph.cr2"), "nothing mirrored");
}

void transferJoints(Bench& bench) {
  front::Opening& opening = bench.opening;
  opening.LabelFileName.setCaption("destination");
  opening.LabelChannelFileName.setCaption("source");
  for (front::ListBox* list : {&opening.ListChannels, &opening.ListActors}) {
    list->add(kLateEntry);
    list->choose(0);
  }
  opening.PictureJoints.released.raise({});
  mustHold(bench.disk.exists("C:\\Norvik\\jointfile.txt"), "no joints");
}

/// Off and on again, so that the next run finds the same figure.
void bendPart(Bench& bench) {
  bench.opening.ListActors.add(kLateEntry);
  bench.opening.ListActors.choose(0);
  bench.opening.MenuBendOff.clicked.raise();
  bench.opening.MenuBendOn.clicked.raise();
}

/// A part of a few vertices: what takes the time is the way to the morph.
void extractMorph(Bench& bench) {
  text::LineWriter obj(bench.disk, "C:\\part.obj");
  for (int i = 0; i < 1000; ++i) obj.line("v 0.5 0.25 0.125");
  obj.line("g lToe");
  obj.line("f 1 2 1000");
  obj.close();
  bench.opening.LabelOBJFileName.setCaption("C:\\part.obj");
  front::ListBox& list = bench.opening.ListChannels;
  for (const char* item : {"Channels for  lToe:1", "", "\tlToeExtra300"}) list.add(item);
  list.choose(2);
  list.released.raise({.button = front::MouseButton::right});
  mustHold(bench.disk.size("C:\\Norvik\\NewMor.obj") > 0, "nothing extracted");
}

void removeIkChains(Bench& bench) {
  bench.answers().queueBox(front::Answer::yes);
  bench.opening.MenuDumpIK.clicked.raise();
}

void makeUnique(Bench& bench) {
  bench.opening.TextERCUnique.setText("Ann");
  bench.opening.TextERCUnique.key.raise("Enter");
  mustHold(bench.disk.exists("C:\\figure_Unique.cr2"), "no copy");
}

void renameDials(Bench& bench) {
  bench.disk.changeFolder("C:\\");
  dials::renameFile(bench.disk, bench.path, dials::Direction::toFriendly);
}

void previewDials(Bench& bench) {
  constexpr std::size_t kRows = 500;
  dials::previewOf(bench.disk, bench.path, dials::Direction::toFriendly, kRows);
}

/// Both digits are turned over again by the next run.
void turnFlags(Bench& bench) {
  for (int i = 0; i < 2; ++i) bench.answers().queueBox(front::Answer::yes);
  bench.opening.ListActors.add(kLateEntry);
  bench.opening.ListActors.choose(0);
  bench.opening.LabelX.clicked.raise();
  bench.opening.TextForceLimits.setText("lToe");
  bench.opening.TextForceLimits.key.raise("Enter");
}

}  // namespace

std::vector<Pass> dialPasses() {
  using enum Kind;
  using enum Figure;
  return {pass("reorder", rewrite, plain, reorder),
          pass("hidden dials, list and change", copy, plain, listAndHideDials),
          pass("mirror, reading twice", copy, plain, mirrorMorph),
          pass("ERC unique name", rewrite, plain, makeUnique),
          pass("tracking speed, reading twice", copy, plain, changeTrackingSpeed),
          pass("joints, extract and transfer", copy, plain, transferJoints),
          pass("bend, off and on", copy, plain, bendPart),
          pass("translation dial and limits", copy, plain, turnFlags),
          pass("extract of a morph", read, plain, extractMorph),
          pass("IK chains", rewrite, replaced, removeIkChains),
          pass("dials renamed", rewrite, replaced, renameDials),
          pass("dials renamed, preview", read, plain, previewDials)};
}

}  // namespace norvik::bench
