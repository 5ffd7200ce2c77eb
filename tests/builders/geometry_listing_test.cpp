// The geometries that an actor has already.

#include "builders/geometry/geometry_listing.h"

#include "support/drive.h"

#include <gtest/gtest.h>

namespace norvik::tests {

namespace {

const std::string kStorage = "actor head:1\r\n\t{\r\n\t}\r\nprop box\r\n\t{\r\n\t}\r\n";

std::string blocks(const std::string& geometries) {
  return "actor head:1\r\n\t{\r\n\tparent BODY:1\r\n" + geometries +
         "\tchannels\r\n\t\t{\r\n\t\t}\r\n\t}\r\n";
}

std::string geometry(const std::string& name) {
  return "\talternateGeom head_" + name + "\r\n\t\t{\r\n\t\tname head_" + name +
         "\r\n\t\tobjFile Runtime\\Geometries\\" + name + ".obj\r\n\t\t}\r\n";
}

}  // namespace

TEST(GeometryListing, TellsNamesAndFilesInTheOrderOfTheDial) {
  Drive drive;
  drive.folder.write("a.cr2", kStorage + blocks(geometry("fist") + geometry("palm") +
                                                "\thidden 0\r\n" + geometry("late")));
  const auto listed = builders::listGeometries(drive.disk, "C:\\a.cr2", "head:1");
  ASSERT_EQ(listed.size(), 2U);
  EXPECT_EQ(listed[0].name, "head_fist");
  EXPECT_EQ(listed[0].obj, "Runtime\\Geometries\\fist.obj");
  EXPECT_EQ(listed[1].name, "head_palm");
}

TEST(GeometryListing, KnowsTheGeometriesOfAProp) {
  Drive drive;
  drive.folder.write("a.pp2", kStorage + "prop box\r\n\t{\r\n\tparent x\r\n" + geometry("lid"));
  const auto listed = builders::listGeometries(drive.disk, "C:\\a.pp2", "box");
  EXPECT_EQ(listed.size(), 1U);
}

TEST(GeometryListing, IsEmptyWithoutTheActorOrItsParent) {
  Drive drive;
  drive.folder.write("a.cr2", kStorage + "actor head:1\r\n\t{\r\n\t}\r\n");
  EXPECT_TRUE(builders::listGeometries(drive.disk, "C:\\a.cr2", "head:1").empty());
  EXPECT_TRUE(builders::listGeometries(drive.disk, "C:\\a.cr2", "neck:1").empty());
}

}  // namespace norvik::tests
