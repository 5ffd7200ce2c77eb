#include "mesh/obj_line.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace norvik::obj {
namespace {

std::string kindWord(LineKind kind) {
  switch (kind) {
    case LineKind::texturePoint:
      return "vt";
    case LineKind::group:
      return "g";
    case LineKind::material:
      return "use";
    case LineKind::vertex:
      return "v";
    case LineKind::face:
      return "f";
    case LineKind::other:
      return "-";
  }
  return "?";
}

/// The kind, "|", and for lines that count the text.
std::string taken(std::string_view line) {
  LineNormaliser normalise;
  const ObjLine result = normalise(line);
  if (result.kind == LineKind::other) return "-";
  return kindWord(result.kind) + "|" + std::string{result.text};
}

TEST(ObjLine, OfEachKindIsKnownByItsFirstCharacters) {
  EXPECT_EQ(taken("vt 0.1 0.2"), "vt|vt 0.1 0.2");
  EXPECT_EQ(taken("vtx"), "vt|vtx");
  EXPECT_EQ(taken("g hip"), "g|g hip");
  EXPECT_EQ(taken("group hip"), "g|group hip");
  EXPECT_EQ(taken("g"), "g|g");
  EXPECT_EQ(taken("usemtl skin"), "use|usemtl skin");
  EXPECT_EQ(taken("usemap foo"), "use|usemap foo");
  EXPECT_EQ(taken("v 1 2 3"), "v|v 1 2 3");
  EXPECT_EQ(taken("f 1 2 3"), "f|f 1 2 3");
}

TEST(ObjLine, OfNoneOfThemIsPassedOver) {
  for (const char* line :
       {"", " ", "vn 0 0 1", "vn", "v", "vp 1", "# g", "s 1", "mtllib a.mtl", "o thing", "us", "u",
        "f", "fx 1 2 3", "F 1 2 3", "V 1 2 3", "\tv 1 2 3"}) {
    EXPECT_EQ(taken(line), "-") << line;
  }
}

TEST(ObjLine, LosesOneLeadingBlank) {
  EXPECT_EQ(taken(" v 1 2 3"), "v|v 1 2 3");
  EXPECT_EQ(taken(" g hip"), "g|g hip");
  EXPECT_EQ(taken("  v 1 2 3"), "-");
}

TEST(ObjLine, MayHaveATabBehindItsWord) {
  EXPECT_EQ(taken("v\t1 2 3"), "v|v 1 2 3");
  EXPECT_EQ(taken("vt\t0.1 0.2"), "vt|vt 0.1 0.2");
  EXPECT_EQ(taken("f\t1 2 3"), "f|f 1 2 3");
  EXPECT_EQ(taken("v\t1\t2"), "v|v 1\t2");
}

TEST(ObjLine, OfAVertexLosesOneOfTwoBlanks) {
  EXPECT_EQ(taken("v  1.0 2.0 3.0"), "v|v 1.0 2.0 3.0");
  EXPECT_EQ(taken("v   1 2 3"), "v|v  1 2 3");
  EXPECT_EQ(taken("v\t 1 2 3"), "v|v 1 2 3");
  EXPECT_EQ(taken("f  1 2 3"), "f|f  1 2 3");
}

TEST(ObjLine, OfAFaceMayBeginWithFo) {
  EXPECT_EQ(taken("fo 1 2 3"), "f|f 1 2 3");
  EXPECT_EQ(taken("fo\t1 2 3"), "f|f 1 2 3");
  EXPECT_EQ(taken("fo"), "-");
  EXPECT_EQ(taken("for 1 2 3"), "-");
  EXPECT_EQ(taken("foo 1 2 3"), "-");
}

TEST(ObjName, IsCutAtItsColumnWhateverTheWord) {
  EXPECT_EQ(groupName("g hip"), "hip");
  EXPECT_EQ(groupName("g"), "");
  EXPECT_EQ(groupName("group hip"), "oup hip");
  EXPECT_EQ(materialName("usemtl skin"), "skin");
  EXPECT_EQ(materialName("usemap foo"), "foo");
  EXPECT_EQ(materialName("use skin"), "n");
  EXPECT_EQ(materialName("use"), "");
}

TEST(ObjLine, KeepsTwoBlanksBehindAVertexWhereAToolWantsThem) {
  LineNormaliser normalise(LineNormaliser::DoubleBlank::kept);
  for (const auto& [line, wanted] : std::vector<std::pair<std::string, std::string>>{
           {" v  1 2 3", "v  1 2 3"}, {"v\t 1 2 3", "v  1 2 3"}, {"v\t1", "v 1"}, {"v 1", "v 1"}}) {
    const ObjLine read = normalise(line);
    EXPECT_EQ(read.kind, LineKind::vertex) << line;
    EXPECT_EQ(read.text, wanted) << line;
  }
  EXPECT_EQ(normalise("vn 1").kind, LineKind::other);
}

TEST(ObjLine, LosesABlankAndTheTabsOfVertices) {
  std::string buffer;
  for (const auto& [line, wanted] :
       std::vector<std::pair<std::string, std::string>>{{" v\t1\t2", "v 1\t2"},
                                                        {"vt\t1", "vt 1"},
                                                        {"  v 1", " v 1"},
                                                        {"vn\t1", "vn\t1"},
                                                        {"f\t1", "f\t1"},
                                                        {"fo 1", "fo 1"},
                                                        {"", ""},
                                                        {" ", ""},
                                                        {"v", "v"}}) {
    EXPECT_EQ(withoutTabs(line, buffer), wanted) << line;
  }
}

}  // namespace
}  // namespace norvik::obj
