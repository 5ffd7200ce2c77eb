#pragma once

#include <cstdint>

namespace norvik::examples {

// A length in steps of 0.00000001, the last decimal that the files print. Whole numbers all the way
// keep the bytes the same on every compiler and machine.
using Units = std::int64_t;

struct Point {
  Units x{};
  Units y{};
  Units z{};

  bool operator==(const Point&) const = default;
};

constexpr Point operator+(const Point& a, const Point& b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Point operator-(const Point& a, const Point& b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Point operator-(const Point& a) {
  return {-a.x, -a.y, -a.z};
}
constexpr Point operator*(const Point& a, Units factor) {
  return {a.x * factor, a.y * factor, a.z * factor};
}
constexpr Point operator/(const Point& a, Units divisor) {
  return {a.x / divisor, a.y / divisor, a.z / divisor};
}

// A point of the body plan, whose numbers are ten-thousandths: 3500 is 0.35.
constexpr Point planPoint(Units x, Units y, Units z) {
  return Point{x, y, z} * 10'000;
}

// Sine of a whole turn's k-th n-th, times a million; close enough for round limbs and, unlike the
// library's, the same everywhere. n is a multiple of four.
constexpr Units sineOf(Units k, Units n) {
  const Units turned = ((2 * k) % (2 * n) + 2 * n) % (2 * n);
  const Units half = turned % n;
  const Units product = half * (n - half);
  const Units sine = 16 * product * 1'000'000 / (5 * n * n - 4 * product);
  return turned < n ? sine : -sine;
}
constexpr Units cosineOf(Units k, Units n) {
  return sineOf(k + n / 4, n);
}

// A number as geometry lines print it, with eight decimals.
struct Fixed8 {
  Units value;
};
// A number as joint and colour lines print it: at most six decimals, no zeros at the end.
struct Short {
  Units value;
};

}  // namespace norvik::examples
