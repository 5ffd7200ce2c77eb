#include "obj/surgery/extract_geometry.h"

#include "figure/embedded_geometry.h"
#include "text/columns.h"
#include "text/field_search.h"

namespace norvik::obj {

namespace {

constexpr std::string_view kDone = "DONE";
constexpr std::string_view kScratch = "\\Extract.txt";
constexpr std::string_view kObj = "obj";

void putListAway(front::Opening& opening) {
  opening.ListOBJExtract.clear();
  opening.ListOBJExtract.hide();
  opening.FrameExtractObj.hide();
  opening.OptionSepObjFiles.hide();
  opening.OptionOneObjFile.hide();
}

void showList(front::Opening& opening) {
  opening.ListOBJExtract.show();
  opening.FrameExtractObj.show();
  opening.OptionSepObjFiles.show();
  opening.OptionOneObjFile.show();
}

/// Adds the owner of each geometry. A quote makes a field of many lines, so its line is looked at.
void listOwners(front::ListBox& list, text::LineReader in) {
  constexpr std::size_t kActorName = 7;
  constexpr std::size_t kPropName = 6;
  static const text::LineFilter filter{text::anywhere("actor"), text::anywhere("prop"),
                                       text::anywhere(figure::kEmbeddedGeometry),
                                       text::anywhere("\"")};
  std::string owner;
  for (;;) {
    in.passLines(filter);
    if (in.atEnd()) return;
    const std::string_view field = in.field();
    if (text::begins(field, "actor")) {
      owner = text::from(field, kActorName);
    } else if (text::begins(field, "prop")) {
      owner = text::from(field, kPropName);
    } else if (text::begins(field, figure::kEmbeddedGeometry)) {
      list.add(owner);
    }
  }
}

void OBJExtractor(front::Session& session) {
  front::Opening& opening = session.opening;
  const auto answer = session.front.messageBox(
      "Would you like to export the embedded geometry to a new OBJ file? (Your original file will "
      "not be harmed.)",
      "Note!", front::kYesNo);
  opening.ListOBJExtract.clear();
  if (answer != front::Answer::yes) return opening.ListOBJExtract.hide();
  listOwners(opening.ListOBJExtract,
             text::LineReader(session.disk, opening.LabelFileNameForEditor.caption()));
  if (opening.ListOBJExtract.count() == 0) return;
  opening.ListOBJExtract.add(kDone);
  showList(opening);
}

bool mayOverwrite(front::Session& session, const std::string& name) {
  return session.front.messageBox("If you have a file called " + name + " it will be overwritten!",
                                  "ALERT!", front::kOkCancel) == front::Answer::ok;
}

/// A file on its way: it takes its name when all is in it, and with what is in it when the figure
/// ends too soon.
class NewMesh {
 public:
  NewMesh(front::Session& session, std::string name)
      : session_(session),
        name_(std::move(name)),
        scratch_(session.opening.inProgramFolder(kScratch)),
        out_(session.disk, scratch_) {}
  NewMesh(const NewMesh&) = delete;
  NewMesh& operator=(const NewMesh&) = delete;
  ~NewMesh() {
    text::ignoringErrors([this] { session_.disk.remove(scratch_); });
  }

  void add(std::string_view entry) {
    text::LineReader in(session_.disk, session_.opening.LabelFileNameForEditor.caption());
    try {
      text::passFieldHolding(in, entry);
      figure::copyEmbeddedGeometry(in, out_);
    } catch (const text::FileError& error) {
      if (error.number() == text::ErrorNumber::inputPastEnd) finish();
      throw;
    }
  }

  void finish() {
    out_.close();
    session_.disk.replace(scratch_, name_);
  }

 private:
  front::Session& session_;
  std::string name_;
  std::string scratch_;
  text::LineWriter out_;
};

std::vector<std::string> chosenEntries(const front::ListBox& list) {
  std::vector<std::string> entries;
  for (const int index : list.selection()) {
    if (index < list.count() - 1) entries.emplace_back(list.item(index));
  }
  return entries;
}

void writeOneFile(front::Session& session, const std::vector<std::string>& entries) {
  const std::string title{text::fileTitle(session.opening.LabelFileNameForEditor.caption())};
  const std::string name = std::string{text::withoutLast(title, kObj.size())} + std::string{kObj};
  if (!mayOverwrite(session, name)) return;
  if (entries.empty()) {
    text::ignoringErrors([&] { session.disk.remove(name); });
    return;
  }
  NewMesh mesh(session, name);
  for (const std::string& entry : entries) mesh.add(entry);
  mesh.finish();
}

void writeSeparateFiles(front::Session& session, const std::vector<std::string>& entries) {
  for (const std::string& entry : entries) {
    const std::string name = std::string{text::before(entry, ":")} + "." + std::string{kObj};
    if (!mayOverwrite(session, name)) return;
    NewMesh mesh(session, name);
    mesh.add(entry);
    mesh.finish();
  }
}

void exportChosen(front::Session& session) {
  front::Opening& opening = session.opening;
  if (opening.ListOBJExtract.chosen() != kDone) return;
  const auto entries = chosenEntries(opening.ListOBJExtract);
  if (opening.OptionOneObjFile.value()) {
    writeOneFile(session, entries);
  } else {
    writeSeparateFiles(session, entries);
  }
  putListAway(opening);
}

}  // namespace

void wireExtractGeometry(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.OptionSepObjFiles.setValue(true);
  opening.PictureOBJExtract.released.add([&session](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) OBJExtractor(session);
  });
  opening.ListOBJExtract.clicked.add([&session] { exportChosen(session); });
  opening.ListOBJExtract.released.add([&opening](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::right) putListAway(opening);
  });
}

}  // namespace norvik::obj
