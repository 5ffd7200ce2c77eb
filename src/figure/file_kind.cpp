#include "figure/file_kind.h"

#include "text/columns.h"

#include <map>
#include <string>

namespace norvik::figure {

FileKind kindOf(std::string_view path) {
  static const std::map<std::string, FileKind, std::less<>> kinds{
      {"cr2", FileKind::cr2}, {"fc2", FileKind::fc2}, {"pz2", FileKind::pz2},
      {"pz3", FileKind::pz3}, {"obj", FileKind::obj}, {"bmp", FileKind::bmp},
      {"hr2", FileKind::hr2}, {"pp2", FileKind::pp2}, {"mtl", FileKind::mtl}};
  const auto found = kinds.find(text::lowered(text::extension(path)));
  return found == kinds.end() ? FileKind::other : found->second;
}

const FigureRules* figureRules(FileKind kind) {
  constexpr int kFigureScan = 100;
  constexpr int kPoseScan = 20;
  // A refusal on a scene, hair or prop is kept for the next figure, face or pose, which it ends.
  static const std::map<FileKind, FigureRules> rules{
      {FileKind::cr2, {true, kFigureScan, false}}, {FileKind::fc2, {true, kFigureScan, false}},
      {FileKind::pz2, {true, kPoseScan, false}},   {FileKind::pz3, {false, kFigureScan, false}},
      {FileKind::hr2, {false, kFigureScan, true}}, {FileKind::pp2, {false, kFigureScan, true}}};
  const auto found = rules.find(kind);
  return found == rules.end() ? nullptr : &found->second;
}

}  // namespace norvik::figure
