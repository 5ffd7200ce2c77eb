#include "obj/scale_forecast.h"

#include "mesh/obj_number.h"
#include "obj/scaled_vertex.h"
#include "text/columns.h"
#include "text/number_text.h"

namespace norvik::obj {

namespace {

/// The words of a written vertex behind its "v" that hold no point.
std::uint64_t wordsWithoutPoint(std::string_view written) {
  std::uint64_t count = 0;
  for (std::size_t at = written.find_first_not_of(' ', 1); at != std::string_view::npos;
       at = written.find_first_not_of(' ', at)) {
    const std::size_t end = std::min(written.find(' ', at), written.size());
    if (!text::holds(written.substr(at, end - at), ".")) ++count;
    at = end;
  }
  return count;
}

}  // namespace

std::optional<float> scaleAmount(std::string_view text) {
  if (text::holds(text, ".")) return std::nullopt;
  float amount = 0;
  text::ignoringErrors([&] { amount = toSingle(text::value(text)); });
  return amount == 0 ? std::nullopt : std::optional{amount};
}

bool ScaleForecast::readOn() {
  constexpr int kLines = 2000;
  for (int i = 0; i < kLines; ++i) {
    if (in_.atEnd()) return false;
    take(in_.field());
  }
  return !in_.atEnd();
}

void ScaleForecast::take(std::string_view line) {
  if (!isScaledLine(line)) return;
  const std::string written = scaledVertex(line, amount_);
  const std::uint64_t found = wordsWithoutPoint(written);
  if (found > 0 && withoutPoint_ == 0) {
    before_ = line;
    after_ = written;
  }
  withoutPoint_ += found;
}

}  // namespace norvik::obj
