#include "builders/transfer/new_weight.h"

#include "text/columns.h"
#include "text/number_text.h"

namespace norvik::builders {

namespace {

/// The weight of a weight line, behind its first blank and the one character of its index.
double weightOf(std::string_view line) {
  return text::value(text::from(line, text::column(line, " ") + 3));
}

}  // namespace

NewWeight weightBehind(std::string_view lastLine) {
  constexpr double kShare = 20;
  const std::size_t blank = text::column(lastLine, " ");
  const auto head = text::leftmost(lastLine, blank == 0 ? 0 : blank - 1);
  const double index = text::value(text::leftmost(text::from(lastLine, blank + 1), 1));
  const double weight = weightOf(lastLine) / kShare;
  const std::string numbers = text::numberText(static_cast<float>(index + 1)) +
                              text::numberText(static_cast<float>(weight));
  return {std::string{head} + numbers, numbers};
}

double weightByRatio(const front::ListBox& weights, std::string_view lastLine) {
  const auto shown = [&weights](int item) { return text::from(weights.item(item), 3); };
  // The new link's place is told by its words, of which the column leaves too few: it is never
  // stepped over.
  std::string_view second = shown(2);
  for (const int further : {3, 5}) {
    if (second == kYourLink) second = shown(further);
  }
  const double ratio = text::value(second) == 0 ? 0 : text::value(shown(1)) / text::value(second);
  return ratio == 0 ? 0 : weightOf(lastLine) / ratio;
}

}  // namespace norvik::builders
