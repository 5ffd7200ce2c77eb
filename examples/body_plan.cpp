#include "body_plan.h"

#include <algorithm>
#include <utility>

namespace norvik::examples {

namespace {

// Sections by the way the limb runs; sizes are half widths in ten-thousandths.
Section upward(Units y, Units z, Units width, Units depth) {
  return {planPoint(0, y, z), planPoint(-width, 0, 0), planPoint(0, 0, depth)};
}
Section downward(Units x, Units y, Units radius) {
  return {planPoint(x, y, 0), planPoint(radius, 0, 0), planPoint(0, 0, radius)};
}
Section leftward(Units x, Units height, Units depth) {
  return {planPoint(x, 5450, 0), planPoint(0, height, 0), planPoint(0, 0, depth)};
}
Section forward(const Point& centre, Units width, Units height) {
  return {centre, planPoint(width, 0, 0), planPoint(0, height, 0)};
}
Section backward(Units z, Units radius) {
  return {planPoint(0, 3600, z), planPoint(-radius, 0, 0), planPoint(0, radius, 0)};
}

// The other side's section. A reflection alone would turn the faces inside out, so u changes its
// sign as well.
Section mirrored(const Section& section) {
  const auto reflected = [](const Point& p) { return Point{-p.x, p.y, p.z}; };
  return {reflected(section.centre), -reflected(section.u), reflected(section.v)};
}

class PlanBuilder {
 public:
  void add(BodyPart part, const std::string& parent) {
    const auto found = std::find_if(plan_.begin(), plan_.end(),
                                    [&](const BodyPart& known) { return known.name == parent; });
    if (found != plan_.end()) part.parent = static_cast<int>(found - plan_.begin());
    if (part.continuesParent) {
      part.sections.insert(part.sections.begin(), found->sections.back());
    }
    plan_.push_back(std::move(part));
  }

  std::vector<BodyPart> take() { return std::move(plan_); }

 private:
  std::vector<BodyPart> plan_;
};

void addTrunk(PlanBuilder& plan) {
  using enum Material;
  plan.add({.name = "hip",
            .title = 6,
            .material = suit,
            .sections = {upward(3350, 0, 560, 430), upward(3600, 0, 760, 560),
                         upward(3900, 0, 640, 480)}},
           "BODY");
  plan.add({.name = "abdomen",
            .title = 5,
            .continuesParent = true,
            .material = suit,
            .sections = {upward(4200, 0, 580, 440), upward(4500, 0, 640, 470)}},
           "hip");
  plan.add({.name = "chest",
            .title = 4,
            .continuesParent = true,
            .material = suit,
            .sections = {upward(5000, 20, 760, 560), upward(5400, 10, 780, 520),
                         upward(5650, 0, 320, 300)}},
           "abdomen");
  plan.add({.name = "neck",
            .title = 3,
            .continuesParent = true,
            .sections = {upward(5850, 0, 260, 270), upward(6000, 10, 250, 260)}},
           "chest");
  plan.add({.name = "head",
            .title = 2,
            .continuesParent = true,
            .sections = {upward(6150, 60, 380, 460), upward(6300, 60, 430, 530),
                         upward(6500, 50, 470, 560), upward(6600, 40, 460, 550),
                         upward(6850, 20, 360, 440), upward(7000, 0, 120, 150)}},
           "neck");
}

struct SideNames {
  std::string prefix;
  int collar, shoulder, foreArm, hand, thigh, shin, foot, toe;
};

void addArm(PlanBuilder& plan, const SideNames& side, const auto& sided) {
  using enum Material;
  plan.add({.name = side.prefix + "Collar",
            .title = side.collar,
            .axis = Axis::x,
            .material = suit,
            .sections = sided({leftward(450, 250, 250), leftward(950, 260, 260)})},
           "chest");
  plan.add({.name = side.prefix + "Shldr",
            .title = side.shoulder,
            .continuesParent = true,
            .axis = Axis::x,
            .material = suit,
            .sections = sided({leftward(1400, 250, 250), leftward(1900, 210, 210)})},
           side.prefix + "Collar");
  plan.add({.name = side.prefix + "ForeArm",
            .title = side.foreArm,
            .continuesParent = true,
            .axis = Axis::x,
            .sections = sided({leftward(2200, 220, 220), leftward(2800, 140, 150)})},
           side.prefix + "Shldr");
  plan.add({.name = side.prefix + "Hand",
            .title = side.hand,
            .continuesParent = true,
            .axis = Axis::x,
            .sections = sided({leftward(3100, 110, 240), leftward(3500, 60, 150)})},
           side.prefix + "ForeArm");
}

void addLeg(PlanBuilder& plan, const SideNames& side, const auto& sided) {
  using enum Material;
  plan.add({.name = side.prefix + "Thigh",
            .title = side.thigh,
            .material = suit,
            .sections = sided(
                {downward(420, 3500, 320), downward(420, 2700, 350), downward(420, 1900, 270)})},
           "hip");
  plan.add({.name = side.prefix + "Shin",
            .title = side.shin,
            .continuesParent = true,
            .material = suit,
            .sections = sided({downward(420, 1400, 290), downward(420, 480, 170)})},
           side.prefix + "Thigh");
  const Section heel{planPoint(420, 280, 60), planPoint(200, 0, 0), planPoint(0, 230, 230)};
  plan.add({.name = side.prefix + "Foot",
            .title = side.foot,
            .continuesParent = true,
            .axis = Axis::z,
            .material = shoes,
            .sections = sided({heel, forward(planPoint(420, 150, 520), 230, 150)})},
           side.prefix + "Shin");
  plan.add({.name = side.prefix + "Toe",
            .title = side.toe,
            .continuesParent = true,
            .axis = Axis::z,
            .material = shoes,
            .sections = sided({forward(planPoint(420, 110, 800), 180, 110)})},
           side.prefix + "Foot");
}

void addSides(PlanBuilder& plan) {
  const auto asDrawn = [](std::vector<Section> sections) { return sections; };
  const auto mirroredAll = [](std::vector<Section> sections) {
    std::transform(sections.begin(), sections.end(), sections.begin(), mirrored);
    return sections;
  };
  const SideNames left{"l", 19, 13, 14, 15, 7, 8, 9, 52};
  const SideNames right{"r", 20, 16, 17, 18, 10, 11, 12, 53};
  addArm(plan, right, mirroredAll);
  addArm(plan, left, asDrawn);
  addLeg(plan, right, mirroredAll);
  addLeg(plan, left, asDrawn);
}

void addTail(PlanBuilder& plan, std::size_t links) {
  for (std::size_t i = 1; i <= links; ++i) {
    const Units end = -450 - 200 * static_cast<Units>(i);
    BodyPart part{.name = "tail" + std::to_string(i), .continuesParent = i > 1, .axis = Axis::z};
    if (i == 1) part.sections = {backward(-450, 120)};
    part.sections.push_back(backward(end, 120));
    plan.add(std::move(part), i == 1 ? "hip" : "tail" + std::to_string(i - 1));
  }
}

}  // namespace

std::vector<BodyPart> bodyPlan(std::size_t count) {
  PlanBuilder builder;
  addTrunk(builder);
  addSides(builder);
  addTail(builder, count - std::min(count, classicPartCount));
  std::vector<BodyPart> plan = builder.take();
  plan.resize(count);
  return plan;
}

bool isContinued(const std::vector<BodyPart>& plan, std::size_t part) {
  return std::any_of(plan.begin(), plan.end(), [&](const BodyPart& later) {
    return later.continuesParent && later.parent == static_cast<int>(part);
  });
}

}  // namespace norvik::examples
