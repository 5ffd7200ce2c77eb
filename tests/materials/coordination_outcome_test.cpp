// What the coordinator's lists do not tell.

#include "materials/coordination_outcome.h"

#include <gtest/gtest.h>

namespace norvik::tests {

TEST(CoordinationOutcome, MarksWhatStayedAndWhatWentAlong) {
  materials::FormMatCoord form;
  for (const char* name : {"skin", "myMaterial"}) form.ListCR2Mat.add(name);
  for (const char* name : {"headskin", "headMaterialskin", "lips", "newskin"}) {
    form.ListOBJMat.add(name);
  }
  form.ListMatsNotInCR2.add("newskin");
  EXPECT_TRUE(materials::stayedInFigure("myMaterial"));
  EXPECT_FALSE(materials::stayedInFigure("mymaterial"));
  EXPECT_TRUE(materials::wentAlong(form, "headskin"));
  EXPECT_FALSE(materials::wentAlong(form, "headMaterialskin"));
  EXPECT_FALSE(materials::wentAlong(form, "lips"));
  EXPECT_FALSE(materials::wentAlong(form, "newskin"));
}

}  // namespace norvik::tests
