// The passes of the material tools and the scene conversions against their steps, line by line.
// Steering: READ SIZE|TOOL|NAME|OTHER. The tools: "colour" (of the material NAME) and "highlight",
// "remove" and "remove-presets" (the materials NAME and OTHER), "add" (the same), "figure" (out of
// a scene) and "library".

#include "builders/scenes/figure_sections.h"
#include "builders/scenes/mtl_creator.h"
#include "desk.h"
#include "input.h"
#include "materials/colour_pass.h"
#include "materials/coordinator_passes.h"
#include "plain_conversions.h"
#include "text/rewrite_pass.h"

namespace {

using namespace norvik;

constexpr const char* kScratch = "C:\\Norvik\\result.txt";
constexpr const char* kColourLine = "\t\tKdColor  .5  0  .99609375 1";
constexpr graphics::Colour kColour = 0xFF0080;

/// A conversion by one of the tools, and by its plain twin.
class Conversion {
 public:
  Conversion(fuzz::Desk& desk, fuzz::PlainConversion& plain, const std::vector<std::string>& pieces)
      : desk_(desk), plain_(plain), names_{pieces[2], pieces[3]} {}

  void convert(const std::string& tool) {
    if (tool == "colour" || tool == "highlight") {
      changeColour(tool == "colour" ? "KdColor" : "KsColor");
    } else if (tool == "remove" || tool == "remove-presets") {
      const bool presets = tool == "remove-presets";
      plain_.removeMaterials(names_, presets);
      materials::removeMaterials(desk_.disk, desk_.path, kScratch, names_, presets);
    } else if (tool == "add") {
      plain_.addMaterials(names_);
      materials::addMaterials(desk_.disk, desk_.path, kScratch, names_);
    } else if (tool == "library") {
      plain_.materialLibrary();
      builders::wireMtlCreator(desk_.session);
      desk_.opening.MenuMakeMTL.clicked.raise();
    } else {
      plain_.figureSections();
      text::RewritePass pass(desk_.disk, desk_.path, kScratch);
      builders::FigureSections figure(pass.out());
      pass.in().handOnLines({}, [&figure](std::string_view lines) { figure.add(lines); });
    }
  }

 private:
  void changeColour(const std::string& key) {
    const bool wanted = plain_.colour(names_[0], key, kColourLine);
    const auto position = materials::findMaterial(desk_.disk, desk_.path, names_[0]);
    fuzz::require(position.has_value() == wanted, "whether the material was found");
    if (!wanted) return;
    materials::writeColour(desk_.disk, desk_.path, kScratch, key, kColour, *position);
  }

  fuzz::Desk& desk_;
  fuzz::PlainConversion& plain_;
  std::vector<std::string> names_;
};

/// The written lines, each block of an added material as "+" and its name.
std::string withBlocks(const fuzz::PlainConversion& plain) {
  constexpr const char* kBlock =
      "\t\t{\r\n\t\tKdColor 1 1 1 1\r\n\t\tKaColor 0 0 0 1\r\n"
      "\t\tKsColor 0.156863 0.129412 0.0980392 1\r\n\t\tTextureColor 1 1 1 1\r\n"
      "\t\tNsExponent 30\r\n\t\ttMin 0\r\n\t\ttMax 0\r\n\t\ttExpo 0.6\r\n\t\tbumpStrength 0\r\n"
      "\t\tksIgnoreTexture 0\r\n\t\treflectThruLights 1\r\n\t\ttextureMap NO_MAP\r\n"
      "\t\tbumpMap NO_MAP\r\n\t\treflectionMap NO_MAP\r\n\t\ttransparencyMap NO_MAP\r\n"
      "\t\tReflectionColor 1 1 1 1\r\n\t\treflectionStrength 1\r\n\t\t}\r\n\r\n";
  std::string text;
  for (const std::string& line : plain.out) {
    if (line.starts_with('+')) {
      text += "\tmaterial " + line.substr(1) + "\r\n" + kBlock;
    } else {
      text += line + "\r\n";
    }
  }
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::Input input(data, size);
  const auto pieces = input.pieces(4);
  const std::string& tool = pieces[1];
  // Plus signs mark the added blocks.
  if (tool == "add" && input.text.find('+') != std::string::npos) return 0;
  const bool library = tool == "library";
  fuzz::Desk desk(library ? "pz3" : "cr2", input.text);
  desk.host.limitReads(fuzz::numberIn(pieces[0], 1, 4096));
  fuzz::PlainConversion plain{input.text};

  const int error = fuzz::Desk::run([&] { Conversion(desk, plain, pieces).convert(tool); });
  fuzz::require(error == plain.error, "the error");
  const bool saved = library && error == 0;
  const char* result = saved ? "/c/f.mtl" : library ? "/c/Norvik/mtl.txt" : "/c/Norvik/result.txt";
  const std::string wanted = tool == "add" ? withBlocks(plain) : fuzz::withLineEnds(plain.out);
  fuzz::requireEqual(desk.host.bytesOf(result), wanted, "the copy");
  fuzz::requireEqual(desk.host.bytesOf(desk.hostName), input.text, "the file");
  return 0;
}
