#include "figure/material_block.h"

#include <array>
#include <string>

namespace norvik::figure {

namespace {

constexpr auto kDefaultKeys = std::to_array<std::string_view>({
    "KdColor 1 1 1 1",
    "KaColor 0 0 0 1",
    "KsColor 0.156863 0.129412 0.0980392 1",
    "TextureColor 1 1 1 1",
    "NsExponent 30",
    "tMin 0",
    "tMax 0",
    "tExpo 0.6",
    "bumpStrength 0",
    "ksIgnoreTexture 0",
    "reflectThruLights 1",
    "textureMap NO_MAP",
    "bumpMap NO_MAP",
    "reflectionMap NO_MAP",
    "transparencyMap NO_MAP",
    "ReflectionColor 1 1 1 1",
    "reflectionStrength 1",
});

}  // namespace

void passToFigure(text::LineReader& in) {
  static const text::LineFilter stops{text::anywhere("figure"), text::anywhere("\"")};
  do {
    in.passLines(stops);
  } while (in.field() != "figure");
}

void writeDefaultMaterial(text::LineWriter& out, std::string_view name) {
  out.line(std::string{kMaterialLine} + " ", name);
  out.line("\t\t{");
  for (const std::string_view key : kDefaultKeys) out.line("\t\t", key);
  out.line("\t\t}");
}

}  // namespace norvik::figure
