// Dials renamed while the host fails. Whatever fails, and whenever: the file is the old or the new
// one, complete.

#include "support/tool_faults.h"

#include <gtest/gtest.h>

#include <tuple>

namespace norvik::tests {

namespace {

/// So much that the pass writes in several pieces.
std::string manyLines(const std::string& dial) {
  std::string lines;
  constexpr int kLines = 4500;
  for (int i = 0; i < kLines; ++i) lines += "\t\t\tname " + dial + "\r\n\t\t\tmax 90 of a dial\r\n";
  return lines;
}

ToolUnderFaults renaming(const std::string& name, const std::string& direction, bool friendly) {
  const std::string number = manyLines("GetStringRes(1028,4)");
  const std::string bend = manyLines("Bend");
  return {name,
          {{"figures/a.cr2", friendly ? number : bend},
           {"figures/other.cr2", "another figure\r\n"},
           {"Norvik/Dials.tmp", "an older result\r\n"}},
          "chdir C:\\Norvik\nload Renamer\ntype Renamer.Dir1 C:\\figures\n"
          "item Renamer.File1 a.cr2\nclick Renamer." +
              direction + "\n",
          "drop Renamer.Label1 Renamer.Picture1\n",
          "figures/a.cr2",
          friendly ? bend : number,
          {}};
}

using Case = std::tuple<ToolUnderFaults, HostFault>;

class RenamerFaultsTest : public testing::TestWithParam<Case> {};

TEST_P(RenamerFaultsTest, FileIsOldOrNew) {
  const auto& [tool, fault] = GetParam();
  expectOldOrNew(tool, fault);
}

std::string caseName(const testing::TestParamInfo<Case>& info) {
  return std::get<0>(info.param).name + std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(Tools, RenamerFaultsTest,
                         testing::Combine(testing::Values(renaming("ToFriendly", "LabelFriendly",
                                                                   true),
                                                          renaming("Revert", "LabelGetSR", false)),
                                          testing::ValuesIn(allHostFaults())),
                         caseName);

}  // namespace

}  // namespace norvik::tests
