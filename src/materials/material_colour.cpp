#include "materials/material_colour.h"

#include "figure/material_lister.h"
#include "front/finished_file.h"
#include "materials/colour_pass.h"
#include "text/columns.h"
#include "text/rewrite_pass.h"

namespace norvik::materials {

namespace {

constexpr std::string_view kScratch = "\\color.txt";
constexpr std::string_view kDiffuse = "KdColor";
constexpr std::string_view kHighlight = "KsColor";

/// One change of a colour.
struct Change {
  std::string material;
  std::string_view key;
  graphics::Colour colour;
  front::PictureButton& swatch;
};

/// Deletes "\color.txt" and finds the material in the destination's file.
std::optional<std::uint64_t> prepare(front::Session& session, const std::string& material) {
  const front::Opening& opening = session.opening;
  const std::string& path = opening.LabelFileNameForEditor.caption();
  const std::string scratch = opening.inProgramFolder(kScratch);
  text::keepApart(session.disk, path, scratch);
  text::ignoringErrors([&] { session.disk.remove(scratch); });
  session.hourglass(true);
  return findMaterial(session.disk, path, material);
}

/// Lists the materials anew; the choice of the same index acts as a click on it. The list shows the
/// destination's file, which is not the saved one if that has another name.
void listAgain(front::Session& session) {
  front::Opening& opening = session.opening;
  const int index = opening.ListMaterials.index();
  opening.ListMaterials.clear();
  opening.ListMATColors.clear();
  opening.ListMatHiLite.clear();
  figure::MatLister(session, opening.LabelFileNameForEditor.caption());
  opening.ListMaterials.choose(index);
  opening.ListMaterials.clicked.raise();
}

/// Writes "\color.txt" and puts it in the place of the file that the operator chooses. False on a
/// Cancel.
bool makeChange(front::Session& session, const Change& change, std::uint64_t position) {
  front::Opening& opening = session.opening;
  const std::string path = opening.LabelFileNameForEditor.caption();
  const std::string scratch = opening.inProgramFolder(kScratch);
  writeColour(session.disk, path, scratch, change.key, change.colour, position);
  {
    const front::ResultOffer offer(session, scratch, path);
    if (!opening.CommonDialog3.save(
            session.front, session.disk.currentFolder(), path, {},
            {"Save the figure with the new colour", front::kFigureFilter})) {
      session.hourglass(false);
      return false;
    }
  }
  session.disk.replace(scratch, opening.CommonDialog3.fileName());
  session.front.tellOf({.path = opening.CommonDialog3.fileName()});
  change.swatch.setBack(change.colour);
  listAgain(session);
  session.hourglass(false);
  return true;
}

void changeChosen(front::Session& session, front::PictureButton& swatch, std::string_view key) {
  const std::string material{session.opening.ListMaterials.chosen()};
  if (material.empty()) {
    session.front.messageBox("Choose a material first.", "Error!", front::kOk);
    return;
  }
  const auto colour = session.front.colourDialog(swatch.back());
  if (!colour) return;
  const auto position = prepare(session, material);
  if (!position) {
    throw text::FileError(text::ErrorNumber::inputPastEnd,
                          session.opening.LabelFileNameForEditor.caption(), text::FileAct::reading);
  }
  makeChange(session, {material, key, *colour, swatch}, *position);
}

}  // namespace

void setColourFromBox(front::Session& session, const front::TextBox& box) {
  const std::string& material = box.text();
  const front::Answer answer = session.front.messageBox(
      "Set color to this color for " + material + "?", "Confirm", front::kOkCancel);
  if (answer != front::Answer::ok) return;
  const auto position = prepare(session, material);
  if (!position) {
    session.hourglass(false);
    session.front.messageBox("No material called " + material + "!  Perhaps mispelled?  Or plural?",
                             "Error!", front::kOk);
    return;
  }
  const Change change{material, kDiffuse, box.back(), session.opening.PictureMatColor};
  if (!makeChange(session, change, *position)) return;
  session.front.messageBox(material + " will now show up in Poser as the color you have chosen!",
                           "Note!", front::kOk);
}

void wireMaterialColours(front::Session& session) {
  const auto wire = [&session](front::PictureButton& swatch, std::string_view key) {
    swatch.released.add([&session, &swatch, key](front::Mouse mouse) {
      if (mouse.button == front::MouseButton::left) changeChosen(session, swatch, key);
    });
  };
  wire(session.opening.PictureMatColor, kDiffuse);
  wire(session.opening.PictureMatHiLite, kHighlight);
}

}  // namespace norvik::materials
