#include "graphics/matrix.h"

#include <cmath>

namespace norvik::graphics {

namespace {

float dot(Vector a, Vector b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vector cross(Vector a, Vector b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// A vector of no length stays as it is.
Vector ofLengthOne(Vector v) {
  const float length = std::sqrt(dot(v, v));
  return length == 0 ? v : Vector{v.x / length, v.y / length, v.z / length};
}

Matrix rotationAboutZ(float angle) {
  const float c = std::cos(angle);
  const float s = std::sin(angle);
  return {{{{c, s, 0, 0}, {-s, c, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}}};
}

}  // namespace

Matrix operator*(const Matrix& first, const Matrix& second) {
  Matrix product;
  for (std::size_t i = 0; i < 4; ++i) {
    for (std::size_t j = 0; j < 4; ++j) {
      for (std::size_t k = 0; k < 4; ++k) {
        product.row[i][j] += first.row[i][k] * second.row[k][j];
      }
    }
  }
  return product;
}

Matrix identityMatrix() {
  return {{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}}};
}

Matrix viewMatrix(Vector from, Vector at, Vector up, float roll) {
  const Vector ahead = ofLengthOne({at.x - from.x, at.y - from.y, at.z - from.z});
  const Vector right = ofLengthOne(cross(up, ahead));
  const Vector above = cross(ahead, right);
  const Matrix straight{{{{right.x, above.x, ahead.x, 0},
                          {right.y, above.y, ahead.y, 0},
                          {right.z, above.z, ahead.z, 0},
                          {-dot(right, from), -dot(above, from), -dot(ahead, from), 1}}}};
  // A head that tilts one way sees the world tilt the other.
  return roll == 0 ? straight : straight * rotationAboutZ(-roll);
}

Matrix projectionMatrix(float nearPlane, float farPlane, float fieldOfView) {
  const float scale = 1 / std::tan(fieldOfView / 2);
  const float depth = farPlane / (farPlane - nearPlane);
  return {{{{scale, 0, 0, 0}, {0, scale, 0, 0}, {0, 0, depth, 1}, {0, 0, -depth * nearPlane, 0}}}};
}

Matrix rotationAboutY(float angle) {
  const float c = std::cos(angle);
  const float s = std::sin(angle);
  return {{{{c, 0, -s, 0}, {0, 1, 0, 0}, {s, 0, c, 0}, {0, 0, 0, 1}}}};
}

Vector transformed(Vector point, const Matrix& matrix) {
  const auto column = [&](std::size_t j) {
    return point.x * matrix.row[0][j] + point.y * matrix.row[1][j] + point.z * matrix.row[2][j] +
           matrix.row[3][j];
  };
  const float distance = column(3);
  return {column(0) / distance, column(1) / distance, column(2) / distance};
}

}  // namespace norvik::graphics
