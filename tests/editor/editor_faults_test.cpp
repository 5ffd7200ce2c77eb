// The editor saves while the host fails. Whatever fails, and whenever: the old or the new text
// stands complete under the name.

#include "support/tool_faults.h"

#include <gtest/gtest.h>

namespace norvik::tests {

namespace {

/// So long that it is written in several pieces.
std::string longText() {
  std::string text;
  constexpr int kLines = 12'000;
  for (int i = 0; i < kLines; ++i) text += "d " + std::to_string(i) + " 0.01 0.02 0\r\n";
  return text;
}

const std::string kOpen = "put LabelFileNameForEditor caption C:\\a.txt\nclick menuEditor\n";
const std::string kEdit =
    "click FormEditor.PictureReplace\ntype FormEditor.ComboFind x\ntype FormEditor.TextReplace y\n"
    "answer Yes\nkey FormEditor.TextReplace Enter\n";

ToolUnderFaults saving(const std::string& name, const std::string& target) {
  const std::string rest = longText();
  return {name,
          {{"a.txt", "x" + rest}, {"other.txt", "another text\r\n"}},
          kOpen + kEdit,
          "choose C:\\" + target + "\nclick FormEditor.PictureSave\n",
          target,
          "y" + rest,
          {}};
}

ToolUnderFaults leaving() {
  const std::string rest = longText();
  return {"Leaving",
          {{"a.txt", "x" + rest}},
          kOpen + kEdit + "key FormEditor.RichTextBox1 y\n",
          "answer Yes\nchoose C:\\a.txt\nclose FormEditor\n",
          "a.txt",
          "y" + rest,
          {}};
}

ToolUnderFaults savingNotes() {
  return {"Notes",
          {{"Norvik/Notes.txt", longText()}},
          "load FormNotes\ntype FormNotes.RichTextBox1 new notes\n",
          "click FormNotes.CommandSave\n",
          "Norvik/Notes.txt",
          "new notes",
          {}};
}

using Case = std::tuple<ToolUnderFaults, HostFault>;

class EditorFaultsTest : public testing::TestWithParam<Case> {};

TEST_P(EditorFaultsTest, TargetIsOldOrNew) {
  const auto& [tool, fault] = GetParam();
  expectOldOrNew(tool, fault);
}

std::string caseName(const testing::TestParamInfo<Case>& info) {
  return std::get<0>(info.param).name + std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(
    Editor, EditorFaultsTest,
    testing::Combine(testing::Values(saving("InPlace", "a.txt"), saving("OverAnother", "other.txt"),
                                     saving("NewName", "new.txt"), leaving(), savingNotes()),
                     testing::ValuesIn(allHostFaults())),
    caseName);

}  // namespace

}  // namespace norvik::tests
