// The path pass against its steps, line by line.
// Steering: READ SIZE|OBJ LINE|TEXTURE|REFLECTION|BUMP|TRANSPARENCY, empty ones leaving their lines
// alone.

#include "desk.h"
#include "figure/path_pass.h"
#include "input.h"
#include "plain_text.h"

namespace {

using norvik::figure::PathSlots;
using norvik::fuzz::PlainText;

bool holds(const std::string& line, std::string_view token) {
  return line.find(token) != std::string::npos;
}

/// The pass over whole lines, and which labels it turns clean.
struct PlainPass {
  PlainText in;
  PathSlots slots;
  std::vector<std::string> out = {};
  bool objClean = false;
  bool transparencyClean = false;
  bool reflectionClean = false;
  bool bumpClean = false;

  /// Returns whether the main material was reached.
  bool copyHead() {
    int replacedLines = 0;
    while (!in.atEnd()) {
      const std::string line = in.line();
      if (holds(line, "figureResFile") && replacedLines < 2 && !slots.obj.empty()) {
        out.push_back(slots.obj);
        objClean = true;
        ++replacedLines;
      } else {
        out.push_back(line);
      }
      if (holds(line, "material skin")) return true;
    }
    return false;
  }

  static void replaceMap(std::string& line, std::string_view token, std::size_t width,
                         const std::string& slot, bool& clean) {
    if (!holds(line, token)) return;
    clean = true;
    if (!slot.empty()) line = line.substr(0, width) + slot;
  }

  void copyMaterials() {
    bool reached = false;
    while (!reached && !in.atEnd()) {
      std::string line = in.line();
      reached = holds(line, "presetMaterial");
      replaceMap(line, "transparencyMap", 17, slots.transparency, transparencyClean);
      replaceMap(line, "reflectionMap", 15, slots.reflection, reflectionClean);
      replaceMap(line, "bumpMap", 9, slots.bump, bumpClean);
      if (line == "textureMap") {
        out.push_back(line);
        line = in.line();
        reached = holds(line, "presetMaterial");
        if (!slots.texture.empty()) line = slots.texture;
        slots.texture.clear();
      } else {
        bool ignored = false;
        replaceMap(line, "textureMap", 12, slots.texture, ignored);
      }
      out.push_back(line);
    }
  }

  void run() {
    if (copyHead()) copyMaterials();
    while (!in.atEnd()) out.push_back(in.line());
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvik::fuzz;
  using norvik::front::Label;
  const Input input(data, size);
  const auto pieces = input.pieces(6);
  const PathSlots slots{pieces[1], pieces[2], pieces[3], pieces[4], pieces[5]};
  Desk desk("cr2", input.text);
  desk.host.limitReads(numberIn(pieces[0], 1, 4096));
  auto& opening = desk.opening;
  Label* const labels[] = {&opening.LabelMainOBJPath, &opening.LabelMainTrans,
                           &opening.LabelMainReflect, &opening.LabelMainBump,
                           &opening.LabelMainTex};
  for (Label* label : labels) label->setFore(norvik::front::kPathEdited);

  PlainPass plain{PlainText(input.text), slots};
  int wantedError = 0;
  try {
    plain.run();
  } catch (int error) {
    wantedError = error;
  }
  const int error = Desk::run([&] { norvik::figure::passPaths(desk.session, slots); });
  require(error == wantedError, "the error");
  requireEqual(desk.host.bytesOf("/c/Norvik/cr2temp.txt"), withLineEnds(plain.out), "the copy");
  requireEqual(desk.host.bytesOf(desk.hostName), input.text, "the figure");
  const bool wanted[] = {plain.objClean, plain.transparencyClean, plain.reflectionClean,
                         plain.bumpClean, false};
  for (std::size_t i = 0; i < std::size(labels); ++i) {
    require((labels[i]->fore() == norvik::front::kPathClean) == wanted[i], "the labels");
  }
  return 0;
}
