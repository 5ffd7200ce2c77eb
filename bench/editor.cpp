// The editor's text: opening, keys, lines and searches in one of four million lines. A step of the
// operator's must not take longer than the picture of a screen, 16 ms.

#include "text/long/brackets.h"
#include "text/long/long_text_edits.h"
#include "text/long/long_text_search.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

using norvik::text::LongText;
using norvik::text::LongTextEdits;
using norvik::text::TextSearch;

constexpr std::size_t kLines = 4'000'000;

const std::string& bytes() {
  static const std::string all = [] {
    std::string made = "{\r\n";
    for (std::size_t i = 1; i + 1 < kLines; ++i) {
      made += "\t\td " + std::to_string(i % 30'000) + " .0123 -.02\r\n";
    }
    return made + "}";
  }();
  return all;
}

const LongText& text() {
  static const LongText made(bytes());
  return made;
}

void opening(benchmark::State& state) {
  for (auto step : state) benchmark::DoNotOptimize(LongText(bytes()).lineCount());
}

void key(benchmark::State& state) {
  LongText edited(bytes());
  LongTextEdits edits(edited);
  std::size_t at = edited.lineStart(kLines / 2);
  for (auto step : state) edits.replace(at++, 0, "x", true);
}

void screenful(benchmark::State& state) {
  constexpr std::size_t kRows = 60;
  std::size_t first = 0;
  for (auto step : state) {
    benchmark::DoNotOptimize(text().lines(first, kRows));
    first = (first + 77'777) % (kLines - kRows);
  }
}

void lineOfPlace(benchmark::State& state) {
  std::size_t at = 0;
  for (auto step : state) {
    benchmark::DoNotOptimize(text().lineOf(at));
    at = (at + 7'777'777) % text().size();
  }
}

void findThroughAll(benchmark::State& state) {
  const TextSearch search("29999 .9", {state.range(0) != 0, false});
  for (auto step : state) benchmark::DoNotOptimize(search.find(text(), 0));
}

void bracketAtTheOtherEnd(benchmark::State& state) {
  for (auto step : state) benchmark::DoNotOptimize(matchingBracket(text(), 0));
}

void replaceEverywhere(benchmark::State& state) {
  for (auto step : state) {
    benchmark::DoNotOptimize(replaceAll(text(), TextSearch("d", {}), "dd").hits);
  }
}

BENCHMARK(opening)->Unit(benchmark::kMillisecond);
BENCHMARK(key)->Unit(benchmark::kMicrosecond);
BENCHMARK(screenful)->Unit(benchmark::kMicrosecond);
BENCHMARK(lineOfPlace)->Unit(benchmark::kMicrosecond);
BENCHMARK(findThroughAll)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(bracketAtTheOtherEnd)->Unit(benchmark::kMillisecond);
BENCHMARK(replaceEverywhere)->Unit(benchmark::kMillisecond);

}  // namespace
