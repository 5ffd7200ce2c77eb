#include "joint_writer.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace norvik::examples {

namespace {

Units along(const Point& point, Axis axis) {
  switch (axis) {
    case Axis::x:
      return point.x;
    case Axis::y:
      return point.y;
    case Axis::z:
      break;
  }
  return point.z;
}

Units lengthOf(const BodyPart& part) {
  const Point bone = endOf(part) - originOf(part);
  return std::max({std::abs(bone.x), std::abs(bone.y), std::abs(bone.z)});
}

class JointWriter {
 public:
  JointWriter(TextFile& file, const Figure& figure, const BodyPart& owner)
      : file_(file), figure_(figure), owner_(owner) {}

  void writeTwist() {
    const Units start = along(originOf(owner_), owner_.axis);
    const Units end = along(endOf(owner_), owner_.axis);
    open(std::string("twist") + capital(owner_.axis), owner_, std::string("_twist"), owner_.axis);
    writeActors(parentActor(figure_, owner_), originOf(owner_));
    file_.line(3, "startPt ", Short{start + (end - start) / 10});
    file_.line(3, "endPt ", Short{end});
    file_.line(3, "calcWeights");
    closeChannel(file_);
  }

  // The bends at the head of a part's bone, as the part itself or its parent holds them.
  void writeBends(const BodyPart& bone, const std::string& otherActor) {
    for (const Axis axis : bendAxes(bone.axis)) {
      open(std::string("joint") + capital(axis), bone, "_joint", axis);
      writeActors(otherActor, originOf(bone));
      writeAngles(bone, axis);
      file_.line(3, "sphereMatsRaw");
      writeSphere(originOf(bone), lengthOf(bone) * 2 / 5);
      writeSphere(originOf(bone), lengthOf(bone));
      file_.line(3, "doBulge 0");
      file_.line(3, "posBulgeLeft 0");
      file_.line(3, "posBulgeRight 0");
      file_.line(3, "negBulgeLeft 0");
      file_.line(3, "negBulgeRight 0");
      file_.line(3, "jointMult 1");
      file_.line(3, "calcWeights");
      closeChannel(file_);
    }
  }

  void writeSmoothing() {
    for (const Axis axis : {Axis::x, Axis::y, Axis::z}) {
      const std::string name = owner_.name + "_smooth" + small(axis);
      const std::string kind = std::string("smoothScale") + capital(axis);
      openChannel(file_, {.kind = kind, .name = name, .dial = name, .value = 1, .isHidden = true},
                  mastersOf(figure_, owner_, name));
      writeActors(parentActor(figure_, owner_), originOf(owner_));
      file_.line(3, "startPt ", Short{along(originOf(owner_), axis)});
      file_.line(3, "endPt ", Short{along(endOf(owner_), axis)});
      file_.line(3, "calcWeights");
      closeChannel(file_);
    }
  }

 private:
  void open(const std::string& kind, const BodyPart& bone, const std::string& stem, Axis axis) {
    const std::string name = bone.name + stem + small(axis);
    openChannel(file_,
                {.kind = kind, .name = name, .dial = name, .isHidden = true, .tracking = "1"},
                mastersOf(figure_, owner_, name));
  }

  void writeActors(const std::string& otherActor, const Point& centre) {
    file_.line(3, "otherActor ", otherActor);
    file_.line(3, "matrixActor NULL");
    file_.line(3, "center ", centre);
  }

  // Two cones of 40 degrees around the bone, one to each side of the joint; what lies between them
  // blends. The angles count from the first of the two axes that span the plane of the bend.
  void writeAngles(const BodyPart& bone, Axis bendAxis) {
    const Axis zeroAxis = bendAxis == Axis::x ? Axis::y : Axis::x;
    const bool isForward = along(endOf(bone) - originOf(bone), bone.axis) > 0;
    const int base = (bone.axis == zeroAxis ? 0 : 90) + (isForward ? 0 : 180);
    file_.line(3, "angles ", base + 20, " ", base - 20, " ", base + 160, " ", base + 200);
  }

  void writeSphere(const Point& centre, Units radius) {
    file_.line(3, Short{radius}, " 0 0 0");
    file_.line(3, "0 ", Short{radius}, " 0 0");
    file_.line(3, "0 0 ", Short{radius}, " 0");
    file_.line(3, centre, " 1");
  }

  TextFile& file_;
  const Figure& figure_;
  const BodyPart& owner_;
};

}  // namespace

void writeJoints(TextFile& file, const Figure& figure, std::size_t part) {
  const BodyPart& owner = figure.parts[part];
  JointWriter writer(file, figure, owner);
  if (owner.parent != noParent) {
    writer.writeTwist();
    writer.writeBends(owner, parentActor(figure, owner));
  }
  for (const BodyPart& child : figure.parts) {
    if (child.parent == static_cast<int>(part)) writer.writeBends(child, actorName(child.name));
  }
  writer.writeSmoothing();
}

std::vector<Master> mastersOf(const Figure& figure, const BodyPart& part, const std::string& name) {
  std::vector<Master> masters;
  for (const Link& link : figure.links) {
    if (link.actor == actorName(part.name) && link.channel == name) masters.push_back(link.master);
  }
  return masters;
}

Point originOf(const BodyPart& part) {
  return part.sections.front().centre;
}
Point endOf(const BodyPart& part) {
  return part.sections.back().centre;
}

}  // namespace norvik::examples
