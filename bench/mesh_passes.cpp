// What changes meshes.

#include "bench_desk.h"
#include "front/form_obj.h"
#include "obj/surgery/mirror.h"
#include "pass_groups.h"
#include "text/line_writer.h"

namespace norvik::bench {

namespace {

front::FormOBJ& loadWorkshop(Bench& bench) {
  bench.opening.LabelOBJFileName.setCaption(bench.path);
  auto& form = dynamic_cast<front::FormOBJ&>(*bench.session.findForm("FormOBJ"));
  bench.session.load(form);
  return form;
}

/// Nothing in the figure is a group, all of it is kept.
void renameNames(Bench& bench) {
  front::FormOBJ& form = loadWorkshop(bench);
  form.ListGrpRen.add("head*skull");
  form.RenamesPending = true;
  bench.choose("renamed.obj");
  bench.session.unload(form);
  mustHold(bench.disk.exists("C:\\renamed.obj"), "nothing renamed");
  bench.disk.remove("C:\\renamed.obj");
}

/// None of it is kept but what may be a vertex.
void saveGroups(Bench& bench) {
  front::FormOBJ& form = loadWorkshop(bench);
  form.ListGroupsSave.add("DONE");
  bench.choose("part.obj");
  form.ListGroupsSave.tickChanged.raise(0);
  mustHold(bench.disk.exists("C:\\part.obj"), "nothing saved");
  bench.disk.remove("C:\\part.obj");
}

/// The figure as a mesh in view that has no vertices.
void takeForMesh(Bench& bench) {
  for (const char* name : {"VArray", "VTArray"}) {
    text::LineWriter(bench.disk, std::string("C:\\Norvik\\") + name + ".txt").close();
  }
  bench.opening.LabelOBJFileName.setCaption(bench.path);
}

void mirrorMesh(Bench& bench) {
  takeForMesh(bench);
  obj::writeMirrored(bench.session, {.x = true, .y = false, .z = false}, false);
  mustHold(bench.disk.exists("C:\\Norvik\\MirrorOBJ.txt"), "nothing mirrored");
  bench.disk.remove("C:\\Norvik\\MirrorOBJ.txt");
}

void cutBox(Bench& bench) {
  takeForMesh(bench);
  auto* form = dynamic_cast<front::FormOBJ*>(bench.session.findForm("FormOBJ"));
  mustHold(form != nullptr, "no workshop");
  bench.session.load(*form);
  form->PictureLop.released.raise({});
  form->PictureStore2.pressed.raise({front::MouseButton::left, 0, 0});
  bench.choose("lopped.obj");
  form->PictureStore2.released.raise({front::MouseButton::left, 600, 600});
  mustHold(bench.disk.exists("C:\\lopped.obj"), "nothing cut");
  bench.disk.remove("C:\\lopped.obj");
}

void listGeometries(Bench& bench) {
  bench.answers().queueBox(front::Answer::yes);
  bench.opening.PictureOBJExtract.released.raise({});
}

void exportGeometry(Bench& bench) {
  listGeometries(bench);
  bench.disk.changeFolder("C:\\");
  bench.opening.ListOBJExtract.choose(0);
  bench.answers().queueBox(front::Answer::ok);
  bench.opening.ListOBJExtract.choose(bench.opening.ListOBJExtract.count() - 1);
  bench.opening.ListOBJExtract.clicked.raise();
  mustHold(bench.disk.exists("C:\\lastBox.obj"), "nothing exported");
  bench.disk.remove("C:\\lastBox.obj");
}

void condense(Bench& bench, bool asMorph) {
  front::Opening& opening = bench.opening;
  opening.LabelOBJFileName.setCaption(bench.path);
  for (int i = 0; i < 2; ++i) {
    opening.PictureMash.released.raise({});
    (asMorph ? opening.OptionMashMorph : opening.OptionMashOBJ).setValue(true);
  }
  mustHold(bench.disk.exists("C:\\work.bak"), "nothing condensed");
  bench.disk.remove("C:\\work.bak");
}

void scaleMesh(Bench& bench) {
  bench.opening.LabelOBJFileName.setCaption(bench.path);
  bench.opening.TextOBJScale.setText("2");
  bench.opening.TextOBJScale.key.raise("Enter");
}

}  // namespace

std::vector<Pass> meshPasses() {
  using enum Kind;
  using enum Figure;
  return {
      pass("groups renamed (two passes)", copy, plain, renameNames),
      pass("chosen groups saved", rewrite, plain, saveGroups),
      pass("mirror of a mesh", rewrite, plain, mirrorMesh),
      pass("cut of a box", read, plain, cutBox),
      pass("list of embedded geometries", read, plain, listGeometries),
      pass("export of an embedded geometry", copy, embedded, exportGeometry),
      pass("mesh condensed", rewrite, mesh, [](Bench& bench) { condense(bench, false); }),
      pass("mesh condensed to a morph", rewrite, mesh, [](Bench& bench) { condense(bench, true); }),
      pass("mesh scaled", arithmetic, mesh, scaleMesh)};
}

}  // namespace norvik::bench
