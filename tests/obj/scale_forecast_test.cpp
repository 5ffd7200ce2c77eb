#include "obj/scale_forecast.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace norvik::obj {

namespace {

class ScaleForecastTest : public testing::Test {
 protected:
  ScaleForecast forecastOf(const std::string& bytes, float amount) {
    folder_.write("m.obj", bytes);
    std::unique_ptr<text::HostFile> file;
    EXPECT_EQ(host_->open(folder_.path("m.obj"), text::HostOpenMode::read, file), 0);
    return {std::move(file), amount};
  }

  tests::TemporaryFolder folder_;
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
};

TEST_F(ScaleForecastTest, CountsTheCoordinatesThatLoseTheirPoint) {
  ScaleForecast forecast = forecastOf(
      "# a mesh\r\n"
      "v 0.1 0.2 0.3\r\n"
      "v -.5 0.25 1\r\n"  // x -1 and z 2
      "vn 1 1 1\r\n"
      "vt 1 1\r\n"
      "v\t1 1 1\r\n"            // all three
      "v 0.000005 0 0\r\n"      // 1E-05 has none either, 0 keeps its own
      "# far, v 2 0.1 0.1\r\n"  // a comma ends a line
      "f 1 2 3\r\n",
      2);
  EXPECT_FALSE(forecast.readOn());
  EXPECT_EQ(forecast.withoutPoint(), 7U);
  EXPECT_EQ(forecast.before(), "v -.5 0.25 1");
  EXPECT_EQ(forecast.after(), "v -10000000 0.500000 20000000");
}

TEST_F(ScaleForecastTest, FindsNothingWhereAllFractionsStay) {
  ScaleForecast forecast = forecastOf("v 0.1 0.2 0.3\nf 1 1 1\n", -2);
  EXPECT_FALSE(forecast.readOn());
  EXPECT_EQ(forecast.withoutPoint(), 0U);
  EXPECT_EQ(forecast.before(), "");
}

TEST_F(ScaleForecastTest, ALargeFileIsReadInStretches) {
  std::string mesh;
  for (int i = 0; i < 9000; ++i) mesh += "v 0.5 0.1 0.1\n";
  ScaleForecast forecast = forecastOf(mesh, 2);
  int stretches = 1;
  while (forecast.readOn()) ++stretches;
  EXPECT_GE(stretches, 4);
  EXPECT_EQ(forecast.withoutPoint(), 9000U);
}

TEST_F(ScaleForecastTest, EndsWhereTheScalerWould) {
  ScaleForecast forecast = forecastOf("v 1 1 3e38\n", 2);
  EXPECT_THROW(forecast.readOn(), text::FileError);
}

TEST_F(ScaleForecastTest, AnEmptyFileHasNothing) {
  ScaleForecast forecast = forecastOf("", 2);
  EXPECT_FALSE(forecast.readOn());
  EXPECT_EQ(forecast.withoutPoint(), 0U);
}

TEST(ScaleAmountTest, IsAWholeNumberOtherThanNought) {
  EXPECT_EQ(scaleAmount("3"), 3.0F);
  EXPECT_EQ(scaleAmount("-2"), -2.0F);
  EXPECT_EQ(scaleAmount("2.5"), std::nullopt);
  EXPECT_EQ(scaleAmount("0"), std::nullopt);
  EXPECT_EQ(scaleAmount(""), std::nullopt);
  EXPECT_EQ(scaleAmount("1e300"), std::nullopt);
}

}  // namespace

}  // namespace norvik::obj
