#include "front/progress.h"

#include "front/form.h"

#include <gtest/gtest.h>

namespace norvik::front {
namespace {

struct ProgressForm : Form {
  ProgressForm() : Form("FormProgress", "Progress") {}
  Label LabelProgress{*this, "LabelProgress"};
};

TEST(ProgressUpdate, AppendsATabForEachWholeTenPercent) {
  ProgressForm form;
  ProgressUpdate(form.LabelProgress, 39);
  EXPECT_EQ(form.LabelProgress.caption(), "\t\t\t");
}

TEST(ProgressUpdate, GrowsWithEachCall) {
  ProgressForm form;
  ProgressUpdate(form.LabelProgress, 10);
  ProgressUpdate(form.LabelProgress, 20);
  EXPECT_EQ(form.LabelProgress.caption(), "\t\t\t");
}

TEST(ProgressUpdate, AddsNothingBelowTenPercent) {
  ProgressForm form;
  ProgressUpdate(form.LabelProgress, 9);
  EXPECT_EQ(form.LabelProgress.caption(), "");
}

TEST(ProgressUpdate, MarksTheLabelAsChanged) {
  ProgressForm form;
  static_cast<void>(form.takeChanges());
  ProgressUpdate(form.LabelProgress, 100);
  ASSERT_EQ(form.takeChanges().size(), 1U);
  EXPECT_EQ(form.LabelProgress.caption(), std::string(10, '\t'));
}

}  // namespace
}  // namespace norvik::front
