#include "erc/joint_ratio.h"

#include "text/columns.h"
#include "text/file_error.h"
#include "text/number_text.h"

#include <cmath>

namespace norvik::erc {

namespace {

struct Limits {
  double least = 0;
  double most = 0;
  double range() const { return most - least; }
};

/// The number of a min or max line behind "*": three tabs and the word stand in front of it.
double limit(std::string_view item) {
  constexpr std::size_t kNumberColumn = 7;
  const auto star = text::column(item, "*");
  return text::value(text::from(text::from(item, star + 1), kNumberColumn));
}

Limits limitsOf(const front::ListBox& list, std::string_view channel) {
  for (int i = 0; i < list.count(); ++i) {
    if (text::holds(list.item(i), channel)) return {limit(list.item(i)), limit(list.item(i + 1))};
  }
  return {};
}

double orOne(double number) {
  return number == 0 ? 1 : number;
}

}  // namespace

std::string ratioOfJoints(const front::ListBox& limits, std::string_view master,
                          std::string_view slaved) {
  Limits controlling = limitsOf(limits, master);
  controlling = {orOne(controlling.least), orOne(controlling.most)};
  if (controlling.range() == 0) throw text::FileError(text::ErrorNumber::divisionByZero);
  const auto ratio = static_cast<float>(limitsOf(limits, slaved).range() / controlling.range());
  if (!std::isfinite(ratio)) throw text::FileError(text::ErrorNumber::overflow);
  return std::string{text::trimmed(text::numberText(ratio))};
}

}  // namespace norvik::erc
