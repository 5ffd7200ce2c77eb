#include "mesh/decimal.h"

#include "mesh/obj_number.h"
#include "text/file_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <compare>

namespace norvik::obj {

namespace {

constexpr std::size_t kMostDigits = 28;
/// Beyond it nothing that a mesh holds is told apart from 0, or from a number that is too large.
constexpr int kMostExponent = 400;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Brings two strings of digits to the same length.
void padFront(std::string& one, std::string& other) {
  const std::size_t length = std::max(one.size(), other.size());
  one.insert(0, length - one.size(), '0');
  other.insert(0, length - other.size(), '0');
}

// The digits of both are of the same length.
std::string sum(const std::string& one, const std::string& other) {
  std::string result(one.size() + 1, '0');
  int carry = 0;
  for (std::size_t i = one.size(); i-- > 0;) {
    const int digit = (one[i] - '0') + (other[i] - '0') + carry;
    result[i + 1] = static_cast<char>('0' + digit % 10);
    carry = digit / 10;
  }
  result[0] = static_cast<char>('0' + carry);
  return result;
}

/// Of the greater and the lesser one.
std::string difference(const std::string& greater, const std::string& lesser) {
  std::string result(greater.size(), '0');
  int borrow = 0;
  for (std::size_t i = greater.size(); i-- > 0;) {
    int digit = (greater[i] - '0') - (lesser[i] - '0') - borrow;
    borrow = digit < 0 ? 1 : 0;
    digit += borrow * 10;
    result[i] = static_cast<char>('0' + digit);
  }
  return result;
}

}  // namespace

Decimal::Decimal(bool negative, std::string digits, int exponent)
    : negative_(negative), digits_(std::move(digits)), exponent_(exponent) {
  settle();
}

Decimal::Decimal(double number) {
  constexpr std::size_t kMostCharacters = 64;
  std::array<char, kMostCharacters> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
  *this = Decimal(
      std::string_view(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data())));
}

Decimal::Decimal(std::string_view text) {
  std::size_t at = text.find_first_not_of(" \t");
  if (at == text.npos) return;
  bool negative = false;
  if (text[at] == '-' || text[at] == '+') negative = text[at++] == '-';
  std::string digits;
  int exponent = 0;
  bool fraction = false;
  bool any = false;
  for (; at < text.size(); ++at) {
    if (text[at] == '.' && !fraction) {
      fraction = true;
    } else if (isDigit(text[at])) {
      any = true;
      digits.push_back(text[at]);
      if (fraction) --exponent;
    } else {
      break;
    }
  }
  if (!any) return;
  if (at < text.size() && std::string_view("eEdD").find(text[at]) != std::string_view::npos) {
    const double power = leadingNumber(text.substr(at + 1));
    constexpr double kMost = kMostExponent;
    exponent += static_cast<int>(std::clamp(std::trunc(power), -kMost, kMost));
  }
  *this = Decimal(negative, std::move(digits), exponent);
}

void Decimal::settle() {
  digits_.erase(0, std::min(digits_.find_first_not_of('0'), digits_.size()));
  if (digits_.size() > kMostDigits) {
    const std::string lost = digits_.substr(kMostDigits);
    digits_.resize(kMostDigits);
    exponent_ += static_cast<int>(lost.size());
    const std::string half = "5" + std::string(lost.size() - 1, '0');
    const bool odd = (digits_.back() - '0') % 2 != 0;
    if (lost > half || (lost == half && odd)) {
      std::string one(digits_.size(), '0');
      one.back() = '1';
      digits_ = sum(digits_, one);
      // 9999... has become one digit longer, and ends with zeros.
      if (digits_.front() == '0') digits_.erase(0, 1);
    }
  }
  while (!digits_.empty() && digits_.back() == '0') {
    digits_.pop_back();
    ++exponent_;
  }
  if (digits_.empty()) {
    negative_ = false;
    exponent_ = 0;
  }
}

Decimal Decimal::operator-() const {
  return {!negative_, digits_, exponent_};
}

Decimal Decimal::operator+(const Decimal& other) const {
  if (isZero()) return other;
  if (other.isZero()) return *this;
  const int exponent = std::min(exponent_, other.exponent_);
  std::string mine = digits_ + std::string(static_cast<std::size_t>(exponent_ - exponent), '0');
  std::string its =
      other.digits_ + std::string(static_cast<std::size_t>(other.exponent_ - exponent), '0');
  padFront(mine, its);
  if (negative_ == other.negative_) return {negative_, sum(mine, its), exponent};
  if (mine >= its) return {negative_, difference(mine, its), exponent};
  return {other.negative_, difference(its, mine), exponent};
}

Decimal Decimal::operator/(const Decimal& divisor) const {
  if (divisor.isZero()) throw text::FileError(text::ErrorNumber::divisionByZero);
  // Long division; two digits more than are kept, and a last one that says whether a rest is left.
  std::string quotient;
  std::string rest;
  int exponent = exponent_ - divisor.exponent_;
  const std::size_t wanted = digits_.size() + divisor.digits_.size() + kMostDigits + 2;
  for (std::size_t i = 0; i < wanted; ++i) {
    if (i >= digits_.size()) --exponent;
    rest.push_back(i < digits_.size() ? digits_[i] : '0');
    rest.erase(0, std::min(rest.find_first_not_of('0'), rest.size()));
    int digit = 0;
    for (;;) {
      std::string lesser = divisor.digits_;
      std::string greater = rest;
      padFront(greater, lesser);
      if (greater < lesser) break;
      rest = difference(greater, lesser);
      rest.erase(0, std::min(rest.find_first_not_of('0'), rest.size()));
      ++digit;
    }
    quotient.push_back(static_cast<char>('0' + digit));
  }
  if (!rest.empty()) {
    quotient.push_back('1');
    --exponent;
  }
  return {negative_ != divisor.negative_, std::move(quotient), exponent};
}

std::string Decimal::text() const {
  if (isZero()) return "0";
  std::string number = digits_;
  if (exponent_ >= 0) {
    number.append(static_cast<std::size_t>(exponent_), '0');
  } else {
    const auto behind = static_cast<std::size_t>(-exponent_);
    if (number.size() < behind) number.insert(0, behind - number.size(), '0');
    number.insert(number.size() - behind, 1, '.');
  }
  return negative_ ? "-" + number : number;
}

}  // namespace norvik::obj
