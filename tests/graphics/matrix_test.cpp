#include "graphics/matrix.h"

#include <gtest/gtest.h>

namespace norvik::graphics {

namespace {

constexpr float kQuarterTurn = 1.5707963F;

void expectNear(Vector found, Vector wanted) {
  constexpr float kClose = 1e-5F;
  EXPECT_NEAR(found.x, wanted.x, kClose);
  EXPECT_NEAR(found.y, wanted.y, kClose);
  EXPECT_NEAR(found.z, wanted.z, kClose);
}

TEST(Matrices, IdentityLeavesAPointWhereItIs) {
  EXPECT_EQ(transformed({1, -2, 3}, identityMatrix()), (Vector{1, -2, 3}));
}

TEST(Matrices, TheViewersEyeStandsThreeBeforeTheMiddle) {
  const Matrix view = viewMatrix({0, 2.5F, -3}, {0, 2.5F, 0}, {0, 1, 0}, 0);
  const Matrix wanted{{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, -2.5F, 3, 1}}}};
  EXPECT_EQ(view, wanted);
  expectNear(transformed({0, 2.5F, 0}, view), {0, 0, 3});
  expectNear(transformed({1, 3.5F, 2}, view), {1, 1, 5});
}

TEST(Matrices, AnEyeThatLooksBackAlongXHasZAtItsRight) {
  const Matrix view = viewMatrix({10, 0, 0}, {0, 0, 0}, {0, 1, 0}, 0);
  expectNear(transformed({0, 0, 0}, view), {0, 0, 10});
  // It looks towards smaller x; in a left-handed space z is then on its right hand.
  expectNear(transformed({0, 0, 2}, view), {2, 0, 10});
  expectNear(transformed({0, 4, 0}, view), {0, 4, 10});
}

TEST(Matrices, ASlantedUpIsMadeUpright) {
  const Matrix view = viewMatrix({0, 0, -1}, {0, 0, 0}, {0, 5, 7}, 0);
  expectNear(transformed({0, 1, 0}, view), {0, 1, 1});
}

TEST(Matrices, ARollToTheLeftTiltsTheWorldToTheRight) {
  const Matrix view = viewMatrix({0, 0, -3}, {0, 0, 0}, {0, 1, 0}, kQuarterTurn);
  expectNear(transformed({0, 1, 0}, view), {1, 0, 3});
  expectNear(transformed({1, 0, 0}, view), {0, -1, 3});
}

TEST(Matrices, ProjectionPutsThePlanesAtDepthZeroAndOne) {
  const Matrix projection = projectionMatrix(1, 1000, kQuarterTurn);
  expectNear(transformed({0, 0, 1}, projection), {0, 0, 0});
  expectNear(transformed({0, 0, 1000}, projection), {0, 0, 1});
  // Half of the depth is gone before the second unit: (1000/999)(1 - 1/2).
  expectNear(transformed({0, 0, 2}, projection), {0, 0, 0.5005005F});
}

TEST(Matrices, AFieldOfViewOfARightAngleReachesAsFarAsTheDistance) {
  const Matrix projection = projectionMatrix(1, 1000, kQuarterTurn);
  expectNear(transformed({3, -3, 3}, projection), {1, -1, 0.6673340F});
  expectNear(transformed({3, 0, 6}, projection), {0.5F, 0, 0.8341675F});
}

TEST(Matrices, ANarrowerFieldOfViewEnlarges) {
  // tan(30 degrees) is 0.57735.
  const Matrix projection = projectionMatrix(1, 1000, 1.0471976F);
  expectNear(transformed({0.57735F, 0, 1}, projection), {1, 0, 0});
}

TEST(Matrices, AFieldBeyondTheHalfCircleTurnsThePictureOver) {
  EXPECT_LT(projectionMatrix(1, 1000, 3.14F / 0.9F).row[0][0], 0);
}

TEST(Matrices, AQuarterTurnAboutYBringsTheFarPointToTheRight) {
  const Matrix turn = rotationAboutY(kQuarterTurn);
  expectNear(transformed({0, 5, 1}, turn), {1, 5, 0});
  expectNear(transformed({1, 0, 0}, turn), {0, 0, -1});
}

TEST(Matrices, AProductAppliesTheLeftOneFirst) {
  const Matrix moved{{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 1, 1}}}};
  const Matrix turn = rotationAboutY(kQuarterTurn);
  expectNear(transformed({0, 0, 0}, moved * turn), {1, 0, 0});
  expectNear(transformed({0, 0, 0}, turn * moved), {0, 0, 1});
}

}  // namespace

}  // namespace norvik::graphics
