#include "materials/coordinated_lists.h"

#include "figure/material_block.h"

#include <optional>
#include <set>
#include <vector>

namespace norvik::materials {

namespace {

using text::anywhere;

/// A list that takes each name once, and Preview not at all.
class NameList {
 public:
  explicit NameList(front::ListBox& list) : list_(list) {}

  void add(std::string_view name) {
    if (name != figure::kPreview && seen_.emplace(name).second) list_.add(name);
  }

 private:
  front::ListBox& list_;
  std::set<std::string, std::less<>> seen_;
};

void passToReference(text::LineReader& in) {
  static const text::LineFilter stops{anywhere("figureResFile"), anywhere("\"")};
  do {
    in.passLines(stops);
  } while (!text::holds(in.field(), "figureResFile"));
}

std::optional<text::LineReader> opened(const text::Disk& disk, const std::string& path) {
  try {
    return text::LineReader(disk, path);
  } catch (const text::FileError&) {
    return std::nullopt;
  }
}

std::set<std::string_view> namesIn(const front::ListBox& list) {
  return {list.items().begin(), list.items().end()};
}

}  // namespace

void listFigureMaterials(FormMatCoord& form, const text::Disk& disk, const std::string& path) {
  static const text::LineFilter materials{anywhere(figure::kMaterial), anywhere("\"")};
  text::LineReader in(disk, path);
  passToReference(in);
  figure::passToFigure(in);
  NameList names(form.ListCR2Mat);
  for (;;) {
    in.passLines(materials);
    if (in.atEnd()) return;
    const auto field = in.field();
    if (figure::isMaterialField(field)) names.add(figure::materialName(field));
  }
}

bool listObjMaterials(FormMatCoord& form, const text::Disk& disk, const std::string& path) {
  static const text::LineFilter uses{anywhere("usemtl")};
  auto in = opened(disk, path);
  if (!in) return false;
  NameList names(form.ListOBJMat);
  for (;;) {
    in->passLines(uses);
    if (in->atEnd()) return true;
    const auto line = in->line();
    if (text::holds(line, "usemtl")) names.add(text::from(line, 8));
  }
}

void compareMaterials(FormMatCoord& form) {
  const auto inFigure = namesIn(form.ListCR2Mat);
  for (const std::string& name : form.ListOBJMat.items()) {
    if (!inFigure.contains(name)) form.ListMatsNotInCR2.add(name);
  }
  const auto inObj = namesIn(form.ListOBJMat);
  std::vector<std::string> removed;
  for (const std::string& name : form.ListCR2Mat.items()) {
    if (!inObj.contains(name)) removed.push_back(name);
  }
  form.ListCR2Mat.clear();
  for (const std::string& name : removed) form.ListCR2Mat.add(name);
}

}  // namespace norvik::materials
