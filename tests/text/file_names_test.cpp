#include "text/file_names.h"

#include <gtest/gtest.h>

namespace norvik::text {

namespace {

TEST(FileNames, CaseDoesNotCount) {
  EXPECT_TRUE(sameName("Figure.CR2", "figure.cr2"));
  EXPECT_FALSE(sameName("figure.cr2", "figure.cr"));
  EXPECT_TRUE(sameName("ÄÖÜß.cr2", "äöüß.CR2"));
  EXPECT_TRUE(sameName("ĄČŁŽŸ", "ąčłžÿ"));
  EXPECT_TRUE(sameName("ΆΈΊΌΎΏΑΩΫ", "άέίόύώαωϋ"));
  EXPECT_TRUE(sameName("ЁЖЯ", "ёжя"));
  EXPECT_FALSE(sameName("×", "÷")) << "no letters, though they lie as far apart as letters do";
  EXPECT_FALSE(sameName("Ä", "A"));
  EXPECT_FALSE(sameName("ā", "Ă")) << "neighbours in their stretch, not a pair";
  EXPECT_TRUE(sameName("形.obj", "形.OBJ"));
  EXPECT_TRUE(sameName("", ""));
}

TEST(FileNames, ANameOutOfAFigureFileHasSingleBytes) {
  EXPECT_TRUE(sameName("K\xF6rper.obj", "Körper.obj"));
  EXPECT_TRUE(sameName("K\xD6RPER.OBJ", "Körper.obj"));
  EXPECT_FALSE(sameName("K\xE4rper.obj", "Körper.obj"));
}

TEST(FileNames, OnlyWellFormedTextIsUtf8) {
  EXPECT_TRUE(isUtf8("plain"));
  EXPECT_TRUE(isUtf8("ä€😀"));
  EXPECT_FALSE(isUtf8("\xE4"));
  EXPECT_FALSE(isUtf8("\xC3"));
  EXPECT_FALSE(isUtf8("\xC3z"));
  EXPECT_FALSE(isUtf8("\xC1\x81")) << "longer than it need be";
  EXPECT_FALSE(isUtf8("\xED\xA0\x80")) << "half of a pair";
  EXPECT_FALSE(isUtf8("\xF4\x90\x80\x80")) << "behind the last character";
  EXPECT_FALSE(isUtf8("\xFF"));
}

}  // namespace

}  // namespace norvik::text
