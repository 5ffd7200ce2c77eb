#include "editor/caret.h"

#include "editor/load_pane.h"

#include <gtest/gtest.h>

namespace norvik::tests {

namespace {

TEST(EditorKeys, LettersAndTheNumberPadMarkTyping) {
  for (const char* key : {"a", "Z", "Ctrl+c", "Shift+Ctrl+X", "Enter", "Space", "Delete",
                          "Backspace", "Tab", "Num5", "Num+", "Num/"}) {
    EXPECT_TRUE(editor::marksTyping(key)) << key;
  }
  for (const char* key : {"5", "+", "/", "\xE9", "[", "@", "`", "{", "F1", "F3", "F12", "Left",
                          "Home", "Escape", "PageDown", "Insert", "", "Ctrl+"}) {
    EXPECT_FALSE(editor::marksTyping(key)) << key;
  }
}

TEST(EditorKeys, FindAgainIsF3WhateverIsHeld) {
  EXPECT_TRUE(editor::isFindAgain("F3"));
  EXPECT_TRUE(editor::isFindAgain("Ctrl+Shift+F3"));
  EXPECT_FALSE(editor::isFindAgain("F30"));
  EXPECT_FALSE(editor::isFindAgain("3"));
}

TEST(EditorLines, HaveACharacterEach) {
  editor::FormEditor form;
  form.RichTextBox1.setContent(text::LongText("a\r\nb\n"));
  EXPECT_EQ(editor::GetCharFromLine(form.RichTextBox1, 1), 0);
  EXPECT_EQ(editor::GetCharFromLine(form.RichTextBox1, 2), 3);
  EXPECT_EQ(editor::GetCharFromLine(form.RichTextBox1, 3), 5) << "behind the last line end";
  EXPECT_EQ(editor::GetCharFromLine(form.RichTextBox1, 4), -1);
  EXPECT_EQ(editor::GetCharFromLine(form.RichTextBox1, 0), -1);
  EXPECT_EQ(editor::GetCharFromLine(form.RichTextBox1, -1), -1);
}

TEST(EditorLoadTime, IsInSecondsOfTheHour) {
  EXPECT_EQ(editor::secondsBetween("2002-03-04 05:06:07", "2002-03-04 05:06:07"), 0);
  EXPECT_EQ(editor::secondsBetween("2002-03-04 05:06:58", "2002-03-04 05:07:01"), 3);
  EXPECT_EQ(editor::secondsBetween("2002-03-04 05:59:59", "2002-03-04 06:00:01"), 2);
  EXPECT_EQ(editor::secondsBetween("3/4/2002 11:59:59 PM", "3/5/2002 12:00:00 AM"), 1);
}

}  // namespace

}  // namespace norvik::tests
