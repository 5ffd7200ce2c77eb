#include "text/line_on_hand.h"

#include "support/drive.h"
#include "support/error_number.h"
#include "text/columns.h"
#include "text/first_dot.h"

#include <gtest/gtest.h>

namespace norvik::tests {

namespace {

using Read = text::LineOnHand::Read;

TEST(LineOnHandTest, TheLineOnHandIsTestedFirst) {
  Drive drive;
  drive.folder.write("a.cr2", "actor hip:1\r\n\tactor\r\n");
  text::LineOnHand in(drive.disk, "C:\\a.cr2", Read::fields);
  EXPECT_EQ(in.line(), "");
  const auto isActor = [](std::string_view line) { return text::begins(line, "actor"); };
  EXPECT_EQ(in.readUntil(isActor), "actor hip:1");
  EXPECT_EQ(in.readUntil(isActor), "actor hip:1");
  EXPECT_EQ(in.read(), "actor");
  in.reopen();
  EXPECT_EQ(in.line(), "actor");
  EXPECT_EQ(in.read(), "actor hip:1");
}

TEST(LineOnHandTest, TheEndOfTheFileLeavesTheLastLine) {
  Drive drive;
  drive.folder.write("a.cr2", "one\r\n\t}\r\n");
  const auto never = [](std::string_view) { return false; };
  for (const bool quick : {false, true}) {
    const auto search = [&](text::LineOnHand& in) {
      return quick ? in.searchUntil(never, {"nowhere"}) : in.searchUntil(never);
    };
    text::LineOnHand lines(drive.disk, "C:\\a.cr2", Read::lines);
    EXPECT_FALSE(search(lines));
    EXPECT_EQ(lines.line(), "\t}");
    text::LineOnHand fields(drive.disk, "C:\\a.cr2", Read::fields);
    EXPECT_FALSE(search(fields));
    EXPECT_EQ(fields.line(), "}");
    EXPECT_EQ(errorNumber([&] { fields.readUntil(never); }), 62);
  }
}

/// A search that passes over lines ends where one that reads them all ends.
TEST(LineOnHandTest, PassingOverLinesChangesNothing) {
  const std::vector<std::string> pieces{"a",  "x", "xy",   ",",    ", ", " ", "\t",
                                        "\"", "}", "\r\n", "\r\n", "\n", "\r"};
  std::uint64_t state = 1;
  const auto next = [&state](std::size_t below) {
    state = state * 6364136223846793005U + 1442695040888963407U;
    return static_cast<std::size_t>(state >> 33U) % below;
  };
  Drive drive;
  for (int round = 0; round < 800; ++round) {
    std::string bytes;
    for (std::size_t i = next(40); i > 0; --i) bytes += pieces[next(pieces.size())];
    drive.folder.write("a.cr2", bytes);
    for (const Read read : {Read::lines, Read::fields}) {
      text::LineOnHand quick(drive.disk, "C:\\a.cr2", read);
      text::LineOnHand plain(drive.disk, "C:\\a.cr2", read);
      for (int search = 0; search < 4; ++search) {
        const auto wanted = [](std::string_view line) { return text::holds(line, "xy"); };
        const bool found = plain.searchUntil(wanted);
        ASSERT_EQ(quick.searchUntil(wanted, {"xy"}), found) << bytes;
        ASSERT_EQ(quick.line(), plain.line()) << bytes;
        if (!found) break;
        if (plain.atEnd()) break;
        plain.read();
        quick.read();
        ASSERT_EQ(quick.line(), plain.line()) << bytes;
      }
    }
  }
}

TEST(FirstDotTest, TheFirstDotOfTheWholePathCounts) {
  EXPECT_EQ(text::throughFirstDot("C:\\figures\\anna.cr2", "phi"), "C:\\figures\\anna.phi");
  EXPECT_EQ(text::throughFirstDot("C:\\my.files\\anna.cr2", "phi"), "C:\\my.phi");
  EXPECT_EQ(text::throughFirstDot("C:\\anna", "phi"), "C:\\annaphi");
}

}  // namespace

}  // namespace norvik::tests
