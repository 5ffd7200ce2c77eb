#include "materials/colour_pass.h"

#include "figure/colour_text.h"
#include "figure/material_block.h"
#include "text/line_search.h"

namespace norvik::materials {

namespace {

using text::anywhere;
using text::atStart;

/// Copies the whole lines up to a position that a read by fields has reached: that of a line's end,
/// or of a comma in it, behind which the rest of the line is copied too.
void copyToPosition(text::RewritePass& pass, std::uint64_t position) {
  static const text::LineFilter materials{anywhere(figure::kMaterial), anywhere("\"")};
  while (pass.in().position() < position) {
    pass.copyLines(materials);
    pass.out().line(pass.in().line());
  }
}

}  // namespace

std::optional<std::uint64_t> findMaterial(const text::Disk& disk, std::string_view path,
                                          std::string_view name) {
  static const text::LineFilter materials{anywhere(figure::kMaterial), anywhere("\"")};
  const std::string marker =
      std::string{figure::kMaterial} + " " + std::string{text::trimmed(name)};
  text::LineReader in(disk, path);
  for (;;) {
    in.passLines(materials);
    if (in.atEnd()) return std::nullopt;
    if (in.field() == marker) return in.position();
  }
}

void writeColour(text::Disk& disk, const std::string& path, const std::string& scratch,
                 std::string_view key, graphics::Colour colour, std::uint64_t position) {
  text::RewritePass pass(disk, path, scratch);
  copyToPosition(pass, position);
  const std::string indented = "\t\t" + std::string{key};
  text::copyUpTo(pass, {atStart(key), atStart(indented)}, [&](std::string_view line) {
    return text::begins(line, key) || text::begins(line, indented);
  });
  const auto [red, green, blue] = figure::fileValues(colour);
  // Each value has the blank of its sign, so that the blanks come doubled.
  pass.out().line("\t\tKdColor " + red + " " + green + " " + blue + " 1");
  pass.copyRest();
  pass.finish();
}

}  // namespace norvik::materials
