#pragma once
// Numbers worked out as people write them.

#include <string>
#include <string_view>

namespace norvik::obj {

/// A decimal number of up to 28 digits, so that 0.1 and 0.2 are 0.3. What has more digits is
/// rounded to the nearest, halves to the even digit.
class Decimal {
 public:
  Decimal() = default;
  /// The leading number of a text, as leadingNumber takes it; 0 if there is none.
  explicit Decimal(std::string_view text);
  explicit Decimal(double number);

  Decimal operator-() const;
  Decimal operator+(const Decimal& other) const;
  Decimal operator-(const Decimal& other) const { return *this + -other; }
  /// Throws FileError divisionByZero (11).
  Decimal operator/(const Decimal& divisor) const;

  bool isZero() const { return digits_.empty(); }

  /// Without an exponent, without a zero in front of the point, without zeros behind the last digit
  /// of the fraction: "12.5", ".5", "-.5", "0".
  std::string text() const;

 private:
  Decimal(bool negative, std::string digits, int exponent);
  void settle();

  bool negative_ = false;
  std::string digits_;  ///< as characters, neither the first nor the last one a zero; none for 0
  int exponent_ = 0;    ///< of ten, of the last digit
};

}  // namespace norvik::obj
