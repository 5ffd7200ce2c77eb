#pragma once
// The matrices of the 3D view. Its space is left-handed: x to the right, y up, z away from the eye.

#include <array>

namespace norvik::graphics {

struct Vector {
  float x = 0;
  float y = 0;
  float z = 0;
  bool operator==(const Vector&) const = default;
};

/// Four rows of four. A point is a row in front of the matrix, so the last row moves it.
struct Matrix {
  std::array<std::array<float, 4>, 4> row{};
  bool operator==(const Matrix&) const = default;
};

/// The matrix that applies `first`, then `second`.
Matrix operator*(const Matrix& first, const Matrix& second);

Matrix identityMatrix();

/// The world as seen from a place. `up` says which way the head points; `roll` tilts it, in
/// radians.
Matrix viewMatrix(Vector from, Vector at, Vector up, float roll);

/// What lies between two planes before the eye, in a square picture of a field of view in radians.
/// The depth runs from 0 at the near plane to 1 at the far one.
Matrix projectionMatrix(float nearPlane, float farPlane, float fieldOfView);

/// A turn about the upright axis, in radians: what was ahead comes to the right.
Matrix rotationAboutY(float angle);

/// Where a point comes to, its depth in z, after the division by its distance.
Vector transformed(Vector point, const Matrix& matrix);

}  // namespace norvik::graphics
