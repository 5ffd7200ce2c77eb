#include "figure.h"

#include "morph_sets.h"
#include "random.h"

#include <algorithm>
#include <string_view>

namespace norvik::examples {

namespace {

// Every sixth of the morphs made by rule moves the whole body; the others take the parts in turn.
Morph ruledMorph(const FigureSettings& settings, std::size_t number) {
  Random random(settings.seed * 1'000'003 + number * 2 +
                (settings.set == MorphSet::second ? 1 : 0));
  const std::string digits = std::to_string(number);
  const std::string padded = std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') + digits;
  const bool isCommon = settings.set == MorphSet::first || number % 3 == 0;
  Morph morph;
  morph.isFullBody = number % 6 == 5;
  morph.name = (morph.isFullBody ? "FBM" : "") + std::string(isCommon ? "Form" : "Other") + padded;
  morph.dial = morph.name;
  if (morph.isFullBody) {
    const int strength = static_cast<int>(random.between(50, 300));
    for (std::size_t part = 0; part < settings.parts; ++part) {
      morph.parts.push_back({part, {ShapeKind::swell, strength, wholePart}, {}});
    }
  } else {
    const Shape shape{static_cast<ShapeKind>(random.between(0, 3)),
                      static_cast<int>(random.between(50, 300)),
                      {500, static_cast<int>(random.between(300, 500))}};
    morph.parts.push_back({number % settings.parts, shape, {}});
  }
  return morph;
}

void keepKnownParts(std::vector<Morph>& morphs, std::size_t partCount) {
  for (Morph& morph : morphs) {
    std::erase_if(morph.parts, [&](const MorphPart& entry) { return entry.part >= partCount; });
  }
  std::erase_if(morphs, [](const Morph& morph) { return morph.parts.empty(); });
}

bool hasActor(const Figure& figure, std::string_view actor) {
  return std::any_of(figure.parts.begin(), figure.parts.end(),
                     [&](const BodyPart& part) { return actorName(part.name) == actor; });
}

bool isKnown(const Figure& figure, const Master& master) {
  if (master.actor != actorName("BODY")) return hasActor(figure, master.actor);
  return std::any_of(figure.morphs.begin(), figure.morphs.end(), [&](const Morph& morph) {
    return morph.isFullBody && morph.name == master.channel;
  });
}

// A figure of few parts or morphs lacks some of the channels that drive others.
void dropUnknownMasters(Figure& figure) {
  for (Morph& morph : figure.morphs) {
    for (MorphPart& entry : morph.parts) {
      std::erase_if(entry.masters, [&](const Master& m) { return !isKnown(figure, m); });
    }
  }
  std::erase_if(figure.links, [&](const Link& link) {
    return !hasActor(figure, link.actor) || !isKnown(figure, link.master);
  });
  std::erase_if(figure.props,
                [&](const CarriedProp& prop) { return !hasActor(figure, prop.parent); });
}

}  // namespace

Figure makeFigure(const FigureSettings& settings) {
  Figure figure;
  figure.geometry = ":Runtime:Geometries:Tilda:tilda.obj";
  figure.parts = bodyPlan(settings.parts);
  figure.density = settings.density;
  figure.morphs = namedMorphs(settings.set);
  figure.links = namedLinks();
  if (settings.set == MorphSet::first) {
    figure.props.push_back({.name = "tildaBuckle:1",
                            .title = "Buckle",
                            .parent = actorName("hip"),
                            .geometry = ":Runtime:Geometries:Tilda:tildabuckle.obj",
                            .origin = planPoint(0, 3840, 500)});
  }
  figure.materials = figureMaterials(settings.set == MorphSet::second ? "tildasuit" : "tilda");
  figure.seed = settings.seed;
  figure.fillerName = settings.set == MorphSet::second ? "More" : "Extra";
  figure.fileSize = settings.fileSize;

  keepKnownParts(figure.morphs, settings.parts);
  if (figure.morphs.size() > settings.morphs) {
    figure.morphs.erase(figure.morphs.begin() + static_cast<std::ptrdiff_t>(settings.morphs),
                        figure.morphs.end());
  }
  while (figure.morphs.size() < settings.morphs) {
    figure.morphs.push_back(ruledMorph(settings, figure.morphs.size() + 1));
  }
  dropUnknownMasters(figure);
  return figure;
}

std::string actorName(const std::string& name) {
  return name + ":1";
}

std::string parentActor(const Figure& figure, const BodyPart& part) {
  if (part.parent == noParent) return actorName("BODY");
  return actorName(figure.parts[static_cast<std::size_t>(part.parent)].name);
}

}  // namespace norvik::examples
