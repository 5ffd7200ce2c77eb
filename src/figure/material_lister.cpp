#include "figure/material_lister.h"

#include "text/columns.h"
#include "text/line_reader.h"
#include "text/number_text.h"

#include <algorithm>
#include <array>
#include <cfenv>
#include <cmath>
#include <optional>
#include <set>

namespace norvik::figure {

namespace {

using text::anywhere;

constexpr std::string_view kMaterial = "material";
constexpr float kFileScale = 256;

using Numbers = std::array<double, 3>;

/// The numbers between runs of blanks; a missing one is 0.
Numbers numbersIn(std::string_view text) {
  Numbers numbers{};
  for (double& number : numbers) {
    text = text::trimmed(text);
    const auto piece = text::before(text, " ");
    number = text::value(piece);
    text.remove_prefix(piece.size());
  }
  return numbers;
}

/// A colour line's list entry: its numbers times 256, one blank between them.
std::string colourEntry(std::string_view line) {
  std::string entry;
  for (const double number : numbersIn(text::after(line, " "))) {
    const std::string part = text::numberText(static_cast<float>(number) * kFileScale);
    if (!entry.empty()) entry += ' ';
    entry += text::trimmed(part);
  }
  return entry;
}

/// Halves go to the even number. Nothing for a number that is no colour component.
std::optional<unsigned> component(double number) {
  constexpr double kMost = 255;
  const double whole = std::nearbyint(number);
  if (!(whole >= 0)) return std::nullopt;
  return static_cast<unsigned>(std::min(whole, kMost));
}

void showColour(front::PictureButton& picture, std::string_view entry) {
  const Numbers numbers = numbersIn(entry);
  const auto red = component(numbers[0]);
  const auto green = component(numbers[1]);
  const auto blue = component(numbers[2]);
  if (red && green && blue) picture.setBack(front::colourOf(*red, *green, *blue));
}

/// One pass over a file's materials.
class MaterialPass {
 public:
  MaterialPass(front::Session& session, const std::string& path)
      : opening_(session.opening), in_(session.disk, path), extension_(text::extension(path)) {}

  void run() {
    const bool pose = extension_ == "pz2" || extension_ == "fc2";
    if (!pose) {
      const bool reachedReference = passToReference();
      if (reachedReference && !isProp()) collectPropNames();
    }
    listMaterials();
  }

 private:
  bool isProp() const { return extension_ == "hr2" || extension_ == "pp2"; }

  /// The next field that may be a material, a prop or a figure; nothing at the end of the file.
  std::optional<std::string_view> next(const text::LineFilter& stops) {
    in_.passLines(stops);
    if (in_.atEnd()) return std::nullopt;
    return in_.field();
  }

  bool passToReference() {
    static const text::LineFilter stops{anywhere("figure"), anywhere(kMaterial), anywhere("\"")};
    while (const auto field = next(stops)) {
      if (*field == "figure") return false;
      if (isProp() && text::begins(*field, kMaterial)) return false;
      if (text::holds(*field, "figureResFile")) return true;
    }
    return false;
  }

  void collectPropNames() {
    static const text::LineFilter stops{anywhere("prop"), anywhere("figure"), anywhere("\"")};
    while (const auto field = next(stops)) {
      if (*field == "figure") return;
      if (text::begins(*field, "prop")) propNames_.emplace(text::from(*field, 6));
    }
  }

  void listMaterials() {
    static const text::LineFilter stops{anywhere(kMaterial), anywhere("\"")};
    while (const auto field = next(stops)) {
      if (!text::begins(*field, kMaterial)) continue;
      const auto name = text::from(*field, 10);
      if (name == "Preview") continue;
      if (propNames_.contains(name)) {
        collectPropNames();
        continue;
      }
      opening_.ListMaterials.add(name);
      static_cast<void>(in_.field());
      const std::string colour = colourEntry(in_.field());
      static_cast<void>(in_.field());
      const std::string highlight = colourEntry(in_.field());
      opening_.ListMATColors.add(colour);
      opening_.ListMatHiLite.add(highlight);
    }
  }

  front::Opening& opening_;
  text::LineReader in_;
  std::string extension_;
  std::set<std::string, std::less<>> propNames_;
};

}  // namespace

void MatLister(front::Session& session, const std::string& path) {
  MaterialPass(session, path).run();
  showMaterialColours(session.opening, 0);
}

void showMaterialColours(front::Opening& opening, int index) {
  showColour(opening.PictureMatColor, opening.ListMATColors.item(index));
  showColour(opening.PictureMatHiLite, opening.ListMatHiLite.item(index));
}

void wireMaterialList(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.ListMaterials.clicked.add(
      [&opening] { showMaterialColours(opening, opening.ListMaterials.index()); });
}

}  // namespace norvik::figure
