#include "pose/mat_colours.h"

#include "figure/colour_text.h"
#include "text/columns.h"
#include "text/number_text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace norvik::pose {

namespace {

/// A component as a MAT file has it: "0" in front of the point, and 0 as "0".
std::string withZero(const std::string& value) {
  std::string result = value;
  if (text::leftmost(value, 3) != " 0.") result = "0" + std::string{text::trimmed(value)};
  return result == "0.0" || result == "00" ? "0" : result;
}

std::string entryOf(front::Colour colour) {
  std::string entry;
  for (const std::string& value : figure::fileValues(colour)) entry += withZero(value) + " ";
  return entry + "1";
}

void showPresent(FormPZ2& form) {
  const auto colour = entryColour(form.ListMATColors.item(form.ListMaterialsMAT.index()));
  if (colour) form.ShapePresentColor.setBack(*colour);
}

void changeColour(front::Session& session, FormPZ2& form) {
  const int index = form.ListMaterialsMAT.index();
  if (index == front::ListBox::kNone) return;
  const auto colour = session.front.colourDialog(form.ShapePresentColor.back());
  if (!colour) return;
  form.ShapeNewColor.setBack(*colour);
  form.changedColours.insert(index);
  form.ListMATColors.setItem(index, entryOf(*colour));
}

void choose(FormPZ2& form) {
  front::ListBox& materials = form.ListMaterialsMAT;
  if (materials.index() == front::ListBox::kNone) return;
  form.ListMaterialsMATWanted.add(materials.chosen());
  materials.remove(materials.index());
}

/// The two texts differ by a blank.
void explain(front::Session& session, const FormPZ2& form, std::string_view blanks) {
  if (form.CheckSetToWhite.value()) {
    session.front.messageBox("Please uncheck Set Colors to White.", "Note!", front::kExclamation);
    return;
  }
  session.front.messageBox(
      "LEFT click and then RIGHT click the material you wish to set the color for." +
          std::string{blanks} +
          "Be sure to change colors BEFORE choosing the materials to save to the file.",
      "Info", front::kInformation);
}

}  // namespace

std::optional<front::Colour> entryColour(std::string_view entry) {
  constexpr double kScale = 256;
  constexpr double kMost = 255;
  std::array<unsigned, 3> parts{};
  for (unsigned& part : parts) {
    entry = text::trimmed(entry);
    const auto piece = text::before(entry, " ");
    entry.remove_prefix(piece.size());
    const double whole = std::nearbyint(text::value(piece) * kScale);  // halves to the even number
    if (!(whole >= 0)) return std::nullopt;
    part = static_cast<unsigned>(std::min(whole, kMost));
  }
  return front::colourOf(parts[0], parts[1], parts[2]);
}

void wireMatColours(front::Session& session, FormPZ2& form) {
  form.ListMaterialsMAT.clicked.add([&form] { showPresent(form); });
  form.ListMaterialsMAT.released.add([&session, &form](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::right) changeColour(session, form);
  });
  form.ListMaterialsMAT.doubleClicked.add([&form] { choose(form); });
  form.LabelChangeColor.clicked.add([&session, &form] { explain(session, form, "  "); });
  form.Frame1.clicked.add([&session, &form] { explain(session, form, " "); });
}

}  // namespace norvik::pose
