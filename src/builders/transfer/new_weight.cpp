#include "builders/transfer/new_weight.h"

#include "text/columns.h"
#include "text/number_text.h"

namespace norvik::builders {

NewWeight weightBehind(std::string_view lastLine) {
  constexpr double kShare = 20;
  const std::size_t blank = text::column(lastLine, " ");
  const auto head = text::leftmost(lastLine, blank == 0 ? 0 : blank - 1);
  const double index = text::value(text::leftmost(text::from(lastLine, blank + 1), 1));
  const double weight = text::value(text::from(lastLine, blank + 3)) / kShare;
  const std::string numbers = text::numberText(static_cast<float>(index + 1)) +
                              text::numberText(static_cast<float>(weight));
  return {std::string{head} + numbers, std::string{text::trimmed(numbers)}};
}

}  // namespace norvik::builders
