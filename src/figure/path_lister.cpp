#include "figure/path_lister.h"

#include "figure/geometry_reference.h"
#include "front/poser_location.h"
#include "front/screen_scale.h"
#include "text/line_reader.h"

#include <set>

namespace norvik::figure {

namespace {

using text::anywhere;

constexpr std::string_view kEmbedded = "geomCustom";
constexpr float kExtractViewLeft = 412;

void noteEmbedded(front::Opening& opening, std::string_view field) {
  if (!text::holds(field, kEmbedded)) return;
  opening.PictureOBJExtract.show();
  opening.PictureOBJView.setLeft(front::scaledLeft(opening, kExtractViewLeft));
}

/// Reads up to the field with the main reference and returns it; empty when the file has none.
std::string findFigure(front::Opening& opening, text::LineReader& in) {
  static const text::LineFilter stops{anywhere("figure"), anywhere(kEmbedded), anywhere("\"")};
  while (!in.atEnd()) {
    in.passLines(stops);
    if (in.atEnd()) break;
    const auto field = in.field();
    noteEmbedded(opening, field);
    if (text::begins(field, "figure")) return std::string{geometryTail(field)};
  }
  return {};
}

std::string findFirstProp(front::Opening& opening, text::LineReader& in) {
  static const text::LineFilter stops{anywhere("prop"), anywhere(kEmbedded), anywhere("\"")};
  while (!in.atEnd()) {
    in.passLines(stops);
    if (in.atEnd()) break;
    const auto field = in.field();
    noteEmbedded(opening, field);
    if (!text::begins(field, "prop")) continue;
    std::string reference;
    for (int i = 0; i < 3; ++i) {
      reference = in.field();
      noteEmbedded(opening, reference);
    }
    return std::string{geometryTail(reference)};
  }
  return {};
}

/// Follows the reference's folders with the current folder, and returns the path of its file.
std::string followReference(text::Disk& disk, std::string folder, std::string_view reference) {
  for (auto colon = reference.find(':'); colon != std::string_view::npos;
       colon = reference.find(':')) {
    folder.append("\\").append(reference.substr(0, colon));
    disk.changeFolder(folder);
    reference.remove_prefix(colon + 1);
  }
  return folder.append("\\").append(reference);
}

/// ListPropObj with a way to ask whether a reference is in it. The item at index 0 is never looked
/// at, so that the first reference can appear twice; the look one past the end finds "".
class PropReferences {
 public:
  explicit PropReferences(front::ListBox& list) : list_(list) {
    for (int i = 1; i < list.count(); ++i) seen_.emplace(list.item(i));
  }

  void add(const std::string& reference) {
    found_ = true;
    const bool listed = list_.count() > 0 && (reference.empty() || seen_.contains(reference));
    if (listed) return;
    if (list_.count() > 0) seen_.insert(reference);
    list_.add(reference);
  }

  bool found() const { return found_; }

 private:
  front::ListBox& list_;
  std::set<std::string, std::less<>> seen_;
  bool found_ = false;
};

void listProps(front::Opening& opening, text::LineReader& in, bool testReference) {
  static const text::LineFilter stops{anywhere("prop "), anywhere(kEmbedded), anywhere("\"")};
  PropReferences references(opening.ListPropObj);
  while (!in.atEnd()) {
    in.passLines(stops);
    if (in.atEnd()) break;
    std::string field{in.field()};
    noteEmbedded(opening, field);
    if (!text::begins(field, "prop ")) continue;
    const std::string name{text::from(field, 6)};
    static_cast<void>(in.field());
    field = in.field();
    noteEmbedded(opening, field);
    if (text::holds(field, "name")) continue;
    field = in.field();
    const bool external = text::holds(field, "Geometries:");
    references.add(external ? std::string{geometryTail(field)} : name + " Custom Geometry in CR2");
    if (testReference) noteEmbedded(opening, field);
  }
  if (!references.found()) {
    opening.ListPropObj.setFore(front::kListWarning);
    opening.ListPropObj.add("No Props in CR2");
  }
}

}  // namespace

void OpenCR2(front::Session& session, const std::string& path) {
  front::Opening& opening = session.opening;
  text::LineReader in(session.disk, path);
  opening.TextMainOBJ.setText(findFigure(opening, in));
  front::readPoserLocation(session);
  const std::string geometries = opening.PoserLocation + "Runtime\\Geometries";
  try {
    opening.LabelOBJFileName.setCaption(
        followReference(session.disk, geometries, opening.TextMainOBJ.text()));
  } catch (const text::FileError&) {
    session.front.messageBox(
        "Folding missing in OBJ path, you need to place the OBJ where it belongs or repoint it in "
        "the "
        "CR2. It may also be that you are missing the first colon, before the Runtime folder.",
        "Error!", front::kCritical);
    return;
  }
  listProps(opening, in, true);
}

void OpenHR2(front::Session& session, const std::string& path) {
  front::Opening& opening = session.opening;
  text::LineReader in(session.disk, path);
  opening.TextMainOBJ.setText(findFirstProp(opening, in));
  front::readPoserLocation(session);
  // The doubled backslash is forgiven.
  const std::string geometries = opening.PoserLocation + "\\Runtime\\Geometries";
  opening.LabelOBJFileName.setCaption(
      followReference(session.disk, geometries, opening.TextMainOBJ.text()));
  listProps(opening, in, false);
}

}  // namespace norvik::figure
