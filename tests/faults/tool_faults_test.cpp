// Every tool that replaces, makes or deletes files of the operator's, on a host that fails.
// Whatever fails, and whenever: each file is the old or the new one, complete, and no other
// changes.

#include "faults/rows.h"

#include <gtest/gtest.h>

#include <ostream>
#include <tuple>

namespace norvik::tests {

std::string manyLines(const std::string& line) {
  constexpr std::size_t kMoreThanABlock = text::kBlockSize + text::kBlockSize / 4;
  std::string lines;
  for (int i = 0; lines.size() < kMoreThanABlock; ++i) {
    lines += line + " " + std::to_string(i) + " 0.01 0.02 0\r\n";
  }
  return lines;
}

FaultRows allRows() {
  FaultRows all;
  for (const auto rows :
       {figureRows, copyRows, surgeryRows, dialRows, linkRows, phiRows, sceneRows, materialRows,
        poseRows, editorRows, meshToolRows, meshRows, smallToolRows}) {
    for (FaultRow& row : rows()) all.push_back(std::move(row));
  }
  return all;
}

static void PrintTo(const FaultRow& row, std::ostream* out) {
  *out << row.name;
}
static void PrintTo(const HostFault& fault, std::ostream* out) {
  *out << fault.name;
}

namespace {

using Case = std::tuple<FaultRow, HostFault>;

class ToolFaults : public testing::TestWithParam<Case> {};

TEST_P(ToolFaults, LeaveTheOldOrTheNewFile) {
  const auto& [row, fault] = GetParam();
  expectOldOrNew(row.make(), fault);
}

std::string caseName(const testing::TestParamInfo<Case>& info) {
  return std::get<0>(info.param).name + std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(Of, ToolFaults,
                         testing::Combine(testing::ValuesIn(allRows()),
                                          testing::ValuesIn(allHostFaults())),
                         caseName);

}  // namespace

}  // namespace norvik::tests
