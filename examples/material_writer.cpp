#include "material_writer.h"

namespace norvik::examples {

namespace {

void writeColours(TextFile& file, const MaterialBlock& material) {
  file.line(2, "KdColor ", material.colour, " 1");
  file.line(2, "KaColor 0 0 0 1");
  file.line(2, "KsColor ", material.highlight, " 1");
  file.line(2, "TextureColor 1 1 1 1");
  file.line(2, "NsExponent ", material.shine);
}

void writeMaterial(TextFile& file, const MaterialBlock& material) {
  file.line(1, "material ", material.name);
  file.line(2, "{");
  writeColours(file, material);
  file.line(2, "tMin 0");
  file.line(2, "tMax 0");
  file.line(2, "tExpo 0.6");
  file.line(2, "bumpStrength 0");
  file.line(2, "ksIgnoreTexture 0");
  file.line(2, "reflectThruLights 1");
  if (material.map.empty()) {
    file.line(2, "textureMap NO_MAP");
  } else {
    file.line(2, "textureMap \"", material.map, "\"");
  }
  file.line(2, "bumpMap NO_MAP");
  file.line(2, "reflectionMap NO_MAP");
  file.line(2, "transparencyMap NO_MAP");
  file.line(2, "ReflectionColor 1 1 1 1");
  file.line(2, "reflectionStrength 1");
  file.line(2, "}");
}

}  // namespace

std::string texturePath(const std::string& name) {
  return "C:Program Files:Poser 4:Runtime:textures:Tilda:" + name + ".bmp";
}

std::vector<MaterialBlock> figureMaterials(const std::string& suitMap) {
  const std::string skin = texturePath("tilda");
  return {{"skin", "1 1 1", "0.1 0.08 0.06", 30, skin},
          {"lips", "0.8 0.4 0.4", "0.3 0.3 0.3", 45, skin},
          {"eyes", "0.25 0.4 0.6", "0.9 0.9 0.9", 90, skin},
          {"suit", "0.35 0.5 0.45", "0.15 0.15 0.15", 25, texturePath(suitMap)},
          {"shoes", "0.3 0.2 0.15", "0.5 0.5 0.5", 60, skin}};
}

void writeMaterials(TextFile& file, const std::vector<MaterialBlock>& materials) {
  writeMaterial(file, {"Preview", "0.6 0.6 0.6", "0.15 0.15 0.15", 30, ""});
  for (const MaterialBlock& material : materials) writeMaterial(file, material);
}

void writePresets(TextFile& file, const std::vector<MaterialBlock>& materials) {
  for (const MaterialBlock& material : materials) {
    file.line(1, "presetMaterial ", material.name);
    file.line(2, "{");
    writeColours(file, material);
    file.line(2, "}");
  }
}

}  // namespace norvik::examples
