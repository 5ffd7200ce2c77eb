// A sheet of graph paper saved while the host fails: what has its name is the old file or the whole
// sheet.

#include "graphics/bmp.h"
#include "support/tool_faults.h"

#include <gtest/gtest.h>

#include <tuple>

namespace norvik::tests {

namespace {

/// A sheet of 20 by 10: red lines at 0, a blue one at 10.
std::string sheet() {
  graphics::Surface surface(20, 10);
  for (int y = 0; y < 10; ++y) {
    surface.setPixel({0, y}, graphics::colourOf(255, 0, 0));
    surface.setPixel({10, y}, graphics::colourOf(0, 0, 128));
  }
  for (int x = 0; x < 20; ++x) surface.setPixel({x, 0}, graphics::colourOf(255, 0, 0));
  return graphics::bmpBytes(surface);
}

ToolUnderFaults paper(const std::string& name, bool there) {
  ToolUnderFaults tool{name,
                       {{"paper/other.bmp", "another picture"}},
                       "chdir C:\\paper\nload FormScale\ntype FormScale.TextHorizontal 20\n"
                       "type FormScale.TextVertical 10\n",
                       "key FormScale.TextVertical Enter\n",
                       "paper/20X10.bmp",
                       sheet(),
                       {}};
  if (there) tool.files["paper/20X10.bmp"] = "an older sheet";
  return tool;
}

using Case = std::tuple<ToolUnderFaults, HostFault>;

class GraphPaperFaultsTest : public testing::TestWithParam<Case> {};

TEST_P(GraphPaperFaultsTest, SheetIsOldOrNew) {
  const auto& [tool, fault] = GetParam();
  expectOldOrNew(tool, fault);
}

std::string caseName(const testing::TestParamInfo<Case>& info) {
  return std::get<0>(info.param).name + std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(Tools, GraphPaperFaultsTest,
                         testing::Combine(testing::Values(paper("New", false),
                                                          paper("InPlace", true)),
                                          testing::ValuesIn(allHostFaults())),
                         caseName);

}  // namespace

}  // namespace norvik::tests
