#include "builders/figures/library_file.h"

#include "builders/figures/library_text.h"
#include "figure/embedded_geometry.h"
#include "front/finished_file.h"
#include "text/columns.h"
#include "text/field_search.h"
#include "text/rewrite_pass.h"

namespace norvik::builders {

namespace {

constexpr std::string_view kScratch = "\\ExtOBJ.tmp";

/// The names that follow from the source's.
struct Names {
  std::string source;
  std::string folder;    ///< the source's, with its backslash
  std::string title;     ///< the source's name without its folder
  std::string geometry;  ///< the title up to its first dot: the folder below Geometries
  std::string objTitle;  ///< the OBJ's name without its folder
};

Names namesFor(const std::string& source) {
  Names names;
  names.source = source;
  names.title = text::fileTitle(source);
  names.folder = text::withoutLast(source, names.title.size());
  names.geometry = text::before(names.title, ".");
  names.objTitle = "new" + names.geometry + ".obj";
  return names;
}

bool mayOverwrite(front::Session& session, const std::string& title) {
  return session.front.messageBox("If you have a file called " + title + " it will be overwritten!",
                                  "ALERT!", front::kOkCancel) == front::Answer::ok;
}

/// Reads up to the geometry of the part that is called `entry`, as an actor or a prop.
void passToGeometry(text::LineReader& in, const std::string& entry) {
  const std::string actor = "actor " + entry;
  const std::string prop = "prop " + entry;
  text::passField(in, entry,
                  [&](std::string_view field) { return field == actor || field == prop; });
  text::passFieldHolding(in, figure::kEmbeddedGeometry);
}

void writeObj(front::Session& session, const Names& names, const std::string& entry) {
  text::LineReader in(session.disk, names.source);
  passToGeometry(in, entry);
  text::LineWriter out(session.disk, names.folder + names.objTitle);
  figure::copyEmbeddedGeometry(in, out);
  out.close();
}

/// Moves the OBJ below Poser's folder. False if the operator keeps a file that has its name there.
bool moveObj(front::Session& session, const Names& names) {
  const std::string folder =
      session.settings.get("Startup", "PLoc", "0") + "Runtime\\Geometries\\" + names.geometry;
  session.disk.makeFolders(folder);
  if (!mayOverwrite(session, names.objTitle)) return false;
  const std::string from = names.folder + names.objTitle;
  const std::string to = folder + "\\" + names.objTitle;
  if (!session.disk.isSameFile(from, to)) session.disk.replace(from, to);
  return true;
}

/// Writes the copy by way of a scratch file, so that an older one stands until this one is whole.
void writeCopy(front::Session& session, const Names& names, const std::string& entry,
               const std::string& result) {
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  const std::string reference = ":Runtime:Geometries:" + names.geometry + ":" + names.objTitle;
  text::keepApart(session.disk, names.source, result);
  try {
    text::RewritePass pass(session.disk, names.source, scratch);
    if (isPropFile(names.source)) {
      referProp(pass, entry, reference);
    } else {
      referFigure(pass, reference);
    }
    pass.finish();
    session.disk.replace(scratch, result);
  } catch (const text::FileError&) {
    text::ignoringErrors([&] { session.disk.remove(scratch); });
    throw;
  }
}

void makeLibraryFile(front::Session& session) {
  front::Opening& opening = session.opening;
  if (!opening.PictureOBJExtract.visible()) {
    session.front.messageBox("There is no embedded geometry in this file!", "Error!",
                             front::kCritical);
    return;
  }
  const Names names = namesFor(opening.LabelFileNameForEditor.caption());
  const std::string entry{opening.ListOBJExtract.chosen()};
  if (!mayOverwrite(session, names.objTitle)) return;
  session.hourglass(true);
  const std::string obj = names.folder + names.objTitle;
  if (session.disk.exists(obj)) session.disk.remove(obj);
  writeObj(session, names, entry);
  if (!moveObj(session, names)) {
    session.hourglass(false);
    return;
  }
  const std::string result = names.folder + "new" + names.title;
  writeCopy(session, names, entry, result);
  session.hourglass(false);
  session.front.tellOf({.path = result});
  session.front.messageBox("New file saved as " + result +
                               ", you may place it where you wish in the Library.  The OBJ is "
                               "located as Runtime\\Geometries\\" +
                               names.geometry + "\\" + names.objTitle,
                           "Note!", front::kOk);
}

}  // namespace

void wireLibraryFile(front::Session& session) {
  session.opening.menuNewCR2ExtOBJ.clicked.add([&session] { makeLibraryFile(session); });
}

}  // namespace norvik::builders
