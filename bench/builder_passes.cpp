// What makes files out of figures and scenes.

#include "bench_desk.h"
#include "builders/transfer/graft_part.h"
#include "pass_groups.h"
#include "text/line_writer.h"

namespace norvik::bench {

namespace {

void makeNullFigure(Bench& bench) {
  bench.opening.menuNullFig.clicked.raise();
  mustHold(bench.disk.exists("C:\\figure_Null.cr2"), "no null figure");
}

/// Without its materials a figure goes on to its end.
void makeMaster(Bench& bench) {
  bench.opening.MenuAnyMasterNoFBM.clicked.raise();
  mustHold(bench.disk.exists("C:\\figureMaster.cr2"), "no master");
  bench.disk.remove("C:\\figureMaster.cr2");
}

/// The part with a geometry of its own is the last one of the figure.
void makeLibraryFile(Bench& bench) {
  bench.opening.PictureOBJExtract.show();
  bench.opening.ListOBJExtract.add("lastBox:1");
  bench.opening.ListOBJExtract.choose(0);
  for (int i = 0; i < 2; ++i) bench.answers().queueBox(front::Answer::ok);
  bench.opening.menuNewCR2ExtOBJ.clicked.raise();
  mustHold(bench.disk.exists("C:\\newembedded.cr2"), "no copy");
  bench.disk.remove("C:\\newembedded.cr2");
}

/// The phi file of a figure without toes on one foot, so that one search runs to its end.
void makePhi(Bench& bench) {
  bench.answers().queueBox(front::Answer::yes);
  bench.choose("figure.cr2");
  bench.opening.MenuPhi.clicked.raise();
  mustHold(bench.disk.exists("C:\\figure.phi"), "no phi file");
  bench.disk.remove("C:\\figure.phi");
}

/// The figure taken for a mesh: nothing in it is a group, all of it is kept.
void cutBranch(Bench& bench) {
  bench.opening.LineObj.show();
  bench.opening.LabelOBJFileName.setCaption(bench.path);
  front::Form* form = bench.session.findForm("FormTree");
  mustHold(form != nullptr, "no form");
  bench.session.load(*form);
  bench.choose("cut.obj");
  form->find("CommandGo")->clicked.raise();
  mustHold(bench.disk.exists("C:\\cut.obj"), "nothing cut");
  bench.disk.remove("C:\\cut.obj");
}

void extractPart(Bench& bench) {
  constexpr int kExtracting = 69;
  bench.opening.Mode = kExtracting;
  bench.opening.ListActors.add("    lToe:1 * 1");
  bench.opening.ListActors.choose(0);
  bench.opening.ListActors.clicked.raise();
  mustHold(bench.opening.Mode != kExtracting, "nothing extracted");
}

/// The names are there before they are asked for, but for the change from the mesh's to another.
void graftPart(Bench& bench) {
  if (!bench.disk.exists("C:\\Norvik\\bp.txt")) extractPart(bench);
  bench.opening.FileChooser.setPath("C:\\");
  bench.opening.FileLabel.setCaption("figure.cr2");
  bench.opening.NameLabel.setCaption("wing");
  bench.answers().queueBox(front::Answer::no);
  bench.steps = {"wing.obj", "figure.cr2"};
  builders::BodyPartTransfer(bench.session);
  mustHold(bench.disk.exists("C:\\New-figure.cr2"), "nothing grafted");
  bench.disk.remove("C:\\New-figure.cr2");
}

void addGeometry(Bench& bench) {
  bench.opening.ListAltGeomActors.add("    lToe:1 * 1");
  bench.opening.ListAltGeomActors.choose(0);
  bench.choose("Runtime\\Geometries\\Tilda\\fist.obj");
  bench.opening.ListAltGeomActors.clicked.raise();
  mustHold(bench.disk.exists("C:\\Norvik\\AltGeom.cr2"), "no geometry added");
}

void takeFigureOut(Bench& bench) {
  bench.choose("taken-out.cr2");
  bench.opening.MenuPZ3Cr2Conv.clicked.raise();
  mustHold(bench.disk.exists("C:\\taken-out.cr2"), "nothing taken out");
}

void makeBackground(Bench& bench) {
  bench.choose("work.pz3");
  bench.opening.MenuPZ3AVI.clicked.raise();
  mustHold(bench.disk.exists("C:\\work-AVI.pp2"), "no background");
  bench.disk.remove("C:\\work-AVI.pp2");
}

void restoreCameras(Bench& bench) {
  text::LineWriter cameras(bench.disk, "C:\\work.cam");
  cameras.line("camera MAIN_CAMERA");
  cameras.close();
  bench.opening.MenuP3P4Cam.clicked.raise();
}

void makeMtl(Bench& bench) {
  bench.opening.MenuMakeMTL.clicked.raise();
  mustHold(bench.disk.exists("C:\\work.mtl"), "no library");
  bench.disk.remove("C:\\work.mtl");
}

}  // namespace

std::vector<Pass> builderPasses() {
  using enum Kind;
  using enum Figure;
  return {pass("null figure", rewrite, plain, makeNullFigure),
          pass("master figure", rewrite, plain, makeMaster),
          pass("figure with its geometry outside", copy, embedded, makeLibraryFile),
          pass("phi file", open, plain, makePhi),
          pass("cut of a branch", readAndRewrite, plain, cutBranch),
          pass("extraction of a body part", read, plain, extractPart),
          pass("graft of a body part", rewrite, plain, graftPart),
          pass("alternate geometry", rewrite, plain, addGeometry),
          pass("figure out of a scene", rewrite, plain, takeFigureOut),
          pass("background of a scene", rewrite, scene, makeBackground),
          pass("cameras of a scene restored", rewrite, scene, restoreCameras),
          pass("MTL file of a scene", read, scene, makeMtl)};
}

}  // namespace norvik::bench
