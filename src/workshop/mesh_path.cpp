#include "workshop/mesh_path.h"

#include "text/columns.h"

namespace norvik::obj {

namespace {

/// The path that a reference with colons leads to; none when a folder is missing.
std::optional<std::string> followReference(front::Session& session, std::string_view reference) {
  std::string path = session.settings.get("Startup", "PLoc", "0") + "Runtime\\Geometries";
  while (text::holds(reference, ":")) {
    path.append("\\").append(text::before(reference, ":"));
    if (!text::ignoringErrors([&] { session.disk.changeFolder(path); })) return std::nullopt;
    reference = text::after(reference, ":");
  }
  return path.append("\\").append(reference);
}

}  // namespace

bool settleMeshPath(Workshop& workshop) {
  front::Opening& opening = workshop.session.opening;
  const bool isMesh =
      text::equalIgnoringCase(text::extension(opening.LabelOBJFileName.caption()), "obj");
  if (!isMesh) {
    const auto path = followReference(workshop.session, opening.TextMainOBJ.text());
    if (!path) {
      workshop.session.front.messageBox("The main OBJ file is not where the CR2 is pointed.",
                                        "Error!", front::kOk);
      return false;
    }
    opening.LabelOBJFileName.setCaption(*path);
  }
  workshop.setTitle(opening.LabelOBJFileName.caption());
  return true;
}

}  // namespace norvik::obj
