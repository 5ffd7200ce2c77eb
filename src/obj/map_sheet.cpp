#include "obj/map_sheet.h"

namespace norvik::obj {

bool showUnsavedMap(Workshop& workshop) {
  const front::FormOBJ& form = workshop.form;
  if (form.MapDrawn != 1 || form.MapSaved != 0) return false;
  workshop.showAlone(form.PictureUVMap);
  return true;
}

text::RecordReader recordsOf(front::Session& session, std::string_view name, std::size_t length) {
  return {session.disk, session.opening.inProgramFolder(name), length};
}

}  // namespace norvik::obj
