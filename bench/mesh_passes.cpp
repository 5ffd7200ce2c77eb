#include "mesh_passes.h"

#include "front/form_obj.h"

namespace norvik::bench {

namespace {

front::FormOBJ& loadWorkshop(Bench& bench) {
  bench.opening.LabelOBJFileName.setCaption(bench.path);
  auto& form = dynamic_cast<front::FormOBJ&>(*bench.session.findForm("FormOBJ"));
  bench.session.load(form);
  return form;
}

}  // namespace

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

}  // namespace norvik::bench
