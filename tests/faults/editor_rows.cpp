// The editor's saves, and that of the notes.

#include "faults/rows.h"

namespace norvik::tests {

namespace {

constexpr const char* kScratch = "Norvik/Edit.tmp";

/// A pane whose first letter was replaced.
const std::string kOpenAndEdit =
    "put LabelFileNameForEditor caption C:\\a.txt\nclick menuEditor\n"
    "click FormEditor.PictureReplace\ntype FormEditor.ComboFind x\ntype FormEditor.TextReplace y\n"
    "answer Yes\nkey FormEditor.TextReplace Enter\n";

ToolUnderFaults saving(const std::string& target) {
  const std::string rest = manyLines("d");
  return {"Save",       {{"a.txt", "x" + rest}, {"other.txt", "another text\r\n"}},
          kOpenAndEdit, "choose C:\\" + target + "\nclick FormEditor.PictureSave\n",
          target,       "y" + rest,
          {},           {},
          {},           kScratch};
}

ToolUnderFaults leaving() {
  const std::string rest = manyLines("d");
  return {"Leave",
          {{"a.txt", "x" + rest}},
          kOpenAndEdit + "key FormEditor.RichTextBox1 y\n",
          "answer Yes\nchoose C:\\a.txt\nclose FormEditor\n",
          "a.txt",
          "y" + rest,
          {},
          {},
          {},
          kScratch};
}

ToolUnderFaults savingNotes() {
  return {"Notes",
          {{"Norvik/Notes.txt", manyLines("note")}},
          "load FormNotes\ntype FormNotes.RichTextBox1 new notes\n",
          "click FormNotes.CommandSave\n",
          "Norvik/Notes.txt",
          "new notes",
          {},
          {},
          {},
          kScratch};
}

}  // namespace

FaultRows editorRows() {
  return {{"EditorInPlace", [] { return saving("a.txt"); }},
          {"EditorOverAnother", [] { return saving("other.txt"); }},
          {"EditorNewName", [] { return saving("new.txt"); }},
          {"EditorLeaving", leaving},
          {"EditorNotes", savingNotes}};
}

}  // namespace norvik::tests
