#include "figure/path_boxes.h"

#include "text/columns.h"

namespace norvik::figure {

namespace {

void markEdited(front::Opening& opening, front::Label& label) {
  label.setFore(front::kPathEdited);
  opening.PathsEdited = true;
}

std::string withColons(std::string_view path) {
  return text::replaced(path, '\\', ':');
}

void browseForMap(front::Session& session, front::Label& label, front::TextBox& box,
                  front::CommonDialog& dialog, std::string_view purpose) {
  // The label is marked before anything is chosen, and stays so.
  label.setFore(front::kPathEdited);
  // A cancel leaves the dialog's last name in force.
  dialog.open(session.front, session.disk.currentFolder(), {}, {purpose, front::kMapFilter});
  const std::string& name = dialog.fileName();
  if (name.empty()) return;
  const std::string path = name.substr(0, 1) + withColons(text::from(name, 3));
  if (path == box.text()) return;
  box.setText(path);
  markEdited(session.opening, label);
}

void takeObjPath(front::Opening& opening, const std::string& path) {
  opening.ObjLineText = "figureResFile :" + path;
}

void browseForObj(front::Session& session) {
  front::Opening& opening = session.opening;
  front::CommonDialog& dialog = opening.CommonDialog4;
  const std::string& present = opening.LabelFileNameForEditor.caption();
  dialog.setFileName(present);
  dialog.open(session.front, session.disk.currentFolder(), {},
              {"Where is the figure's mesh?", front::kMeshFilter});
  if (dialog.fileName() == present) return;
  const std::size_t runtime = text::column(dialog.fileName(), "Runtime");
  if (runtime == 0) {
    session.front.messageBox("Geometry files must be in the Runtime folders!", "Error!",
                             front::kOk);
    return;
  }
  const std::string path = withColons(text::from(dialog.fileName(), runtime));
  takeObjPath(opening, path);
  opening.TextMainOBJ.setText(path);
  markEdited(opening, opening.LabelMainOBJPath);
}

void takeTypedPath(front::Session& session, front::Label& label, front::TextBox& box) {
  if (text::holds(box.text(), "/")) {
    session.front.messageBox("You used a forward instead of back slash!", "ERROR!", front::kOk);
    session.front.beep();
    return;
  }
  const std::string path = withColons(box.text());
  if (&box == &session.opening.TextMainOBJ) takeObjPath(session.opening, path);
  box.setText(path);
  markEdited(session.opening, label);
}

}  // namespace

void wirePathBoxes(front::Session& session) {
  front::Opening& opening = session.opening;
  struct MapBox {
    front::Label& label;
    front::TextBox& box;
    front::CommonDialog& dialog;
    std::string_view purpose;
  };
  const MapBox maps[] = {{opening.LabelMainTex, opening.TextMainTex, opening.CommonDialog5,
                          "Where is the main texture?"},
                         {opening.LabelMainBump, opening.TextMainBump, opening.CommonDialog6,
                          "Where is the main bump map?"},
                         {opening.LabelMainTrans, opening.TextMainTrans, opening.CommonDialog7,
                          "Where is the main transparency map?"},
                         {opening.LabelMainReflect, opening.TextMainReflect, opening.CommonDialog8,
                          "Where is the main reflection map?"}};
  for (const MapBox& map : maps) {
    map.label.clicked.add(
        [&session, map] { browseForMap(session, map.label, map.box, map.dialog, map.purpose); });
    map.box.doubleClicked.add([&session, map] { takeTypedPath(session, map.label, map.box); });
  }
  opening.LabelMainOBJPath.clicked.add([&session] { browseForObj(session); });
  opening.TextMainOBJ.doubleClicked.add([&session, &opening] {
    takeTypedPath(session, opening.LabelMainOBJPath, opening.TextMainOBJ);
  });
  opening.TextMainOBJ.pressed.add([&session](front::Mouse mouse) {
    if (mouse.button != front::MouseButton::right) return;
    session.front.messageBox(
        "For any of these path boxes, doubleclick when you are done hand-editing, or browse by "
        "clicking the labels to the left.",
        "Note!", front::kOk);
  });
  opening.TextMainOBJ.moved.add(
      [&opening](front::Mouse) { opening.TextMainOBJ.setTip(opening.LabelOBJFileName.caption()); });
}

}  // namespace norvik::figure
