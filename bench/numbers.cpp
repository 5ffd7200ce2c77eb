// Numbers to text and back.

#include "text/number_text.h"

#include <benchmark/benchmark.h>

namespace {

void numberToText(benchmark::State& state) {
  float number = 0.00012345F;
  for (auto step : state) {
    benchmark::DoNotOptimize(norvik::text::numberText(number));
    number = -number;
  }
  state.SetItemsProcessed(state.iterations());
}

void textToNumber(benchmark::State& state) {
  const std::string text = "-0.00188540";
  for (auto step : state) benchmark::DoNotOptimize(norvik::text::value(text));
  state.SetItemsProcessed(state.iterations());
}

BENCHMARK(numberToText);
BENCHMARK(textToNumber);

}  // namespace
