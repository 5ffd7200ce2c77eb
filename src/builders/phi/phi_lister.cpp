#include "builders/phi/phi_lister.h"

#include "text/columns.h"
#include "text/line_on_hand.h"
#include "text/number_text.h"

#include <algorithm>
#include <array>

namespace norvik::builders {

namespace {

using text::begins;
using text::holds;

struct PartDepth {
  std::string_view name;
  int depth;
};

/// With the abdomen as 1. Fingers have the depth of their joint's number, see depthOf.
constexpr auto kDepths = std::to_array<PartDepth>({
    {"abdomen", 1}, {"lThigh", 1},   {"rThigh", 1},   {"chest", 2},   {"lShin", 2},
    {"rShin", 2},   {"lCollar", 3},  {"rCollar", 3},  {"neck", 3},    {"lFoot", 3},
    {"rFoot", 3},   {"lShldr", 4},   {"rShldr", 4},   {"head", 4},    {"lToe", 4},
    {"rToe", 4},    {"lForeArm", 5}, {"rForeArm", 5}, {"lHand", 6},   {"rHand", 6},
    {"lMid1", 7},   {"lIndex1", 7},  {"lRing1", 7},   {"lPinky1", 7}, {"lThumb1", 7},
    {"rMid1", 7},   {"rIndex1", 7},  {"rRing1", 7},   {"rPinky1", 7}, {"rThumb1", 7},
    {"lMid2", 8},   {"lIndex2", 8},  {"lRing2", 8},   {"lPinky2", 8}, {"lThumb2", 8},
    {"rMid2", 8},   {"rIndex2", 8},  {"rRing2", 8},   {"rPinky2", 8}, {"rThumb2", 8},
    {"lMid3", 9},   {"lIndex3", 9},  {"lRing3", 9},   {"lPinky3", 9}, {"lThumb3", 9},
    {"rMid3", 9},   {"rIndex3", 9},  {"rRing3", 9},   {"rPinky3", 9}, {"rThumb3", 9},
});

/// A name that is not known has the depth of the one before it.
int depthOf(std::string_view name, int before) {
  const auto found = std::find_if(kDepths.begin(), kDepths.end(),
                                  [&](const PartDepth& part) { return part.name == name; });
  return found == kDepths.end() ? before : found->depth;
}

/// Whether there is a figure to list.
bool haveFigure(front::Session& session) {
  front::Opening& opening = session.opening;
  // The rule under the path block stands while the mesh on view is that of the main pane's figure.
  if (opening.LineObj.visible() && !opening.LabelOBJFileName.caption().empty()) return true;
  session.front.messageBox("Open the appropriate CR2 file.", "Note", front::kOk);
  front::CommonDialog& dialog = opening.CommonDialog1;
  dialog.setFileName({});
  if (!dialog.open(session.front, session.disk.currentFolder(), {},
                   {"Open the figure that the mesh belongs to", front::kCharacterFilter})) {
    return false;
  }
  opening.LabelFileNameForEditor.setCaption(dialog.fileName());
  return true;
}

void passHip(text::LineOnHand& in) {
  in.searchUntil([](std::string_view line) { return holds(line, "figureResFile"); },
                 {"figureResFile"});
  in.read();
  in.readUntil([](std::string_view line) { return holds(line, "actor hip:"); }, {"actor hip:"});
  in.read();
}

}  // namespace

void PhiLister(front::Session& session, FormTree& form) {
  if (!haveFigure(session)) return;
  text::LineOnHand in(session.disk, session.opening.LabelFileNameForEditor.caption(),
                      text::LineOnHand::Read::fields);
  passHip(in);
  int depth = 0;
  const auto ends = [](std::string_view line) {
    return line.empty() || holds(line, "figureResFile");
  };
  while (!in.atEnd()) {
    in.searchUntil([&](std::string_view line) { return begins(line, "actor") || ends(line); });
    if (ends(in.line()) || !begins(in.line(), "actor")) return;
    const std::string name{text::from(text::before(in.line(), ":"), 7)};
    in.setLine(" ");
    depth = depthOf(name, depth);
    form.ListPhi.add(std::string(static_cast<std::size_t>(depth) * 2, ' ') + std::to_string(depth) +
                     "fig " + name);
  }
}

void wirePhiLister(front::Session& session, FormTree& form) {
  form.shown.add([&session, &form] { PhiLister(session, form); });
  form.unloading.add([&form] { form.ListPhi.clear(); });
}

TreeItem treeItem(std::string_view item) {
  const std::string_view line = text::trimmed(item);
  const bool named = holds(line, "fig");
  return {text::value(line),
          named ? std::string{text::trimmed(text::after(line, "fig"))} : std::string{}};
}

}  // namespace norvik::builders
