// The readers and what they are made of, on a morph's lines in memory.

#include "text/line_filter.h"
#include "text/line_reader.h"
#include "text/line_scan.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

namespace text = norvik::text;

constexpr std::size_t kTextSize = std::size_t{4} << 20U;

const std::string& morphText() {
  static const std::string whole = [] {
    const std::string line = "\t\t\t\td 1234 -0.00188540 0.00000000 0.00047018\r\n";
    std::string made;
    while (made.size() < kTextSize) made += line;
    return made;
  }();
  return whole;
}

/// A file that is in memory already.
class TextFile final : public text::HostFile {
 public:
  explicit TextFile(std::string_view rest) : rest_(rest) {}
  int read(char* into, std::size_t size, std::size_t& got) override {
    got = rest_.copy(into, size);
    rest_.remove_prefix(got);
    return 0;
  }
  int write(std::string_view) override { return 0; }
  int seek(std::uint64_t) override { return 0; }
  int size(std::uint64_t&) override { return 0; }
  int sync() override { return 0; }

 private:
  std::string_view rest_;
};

template <typename Use>
void overText(benchmark::State& state, Use use) {
  const std::string& all = morphText();
  for (auto step : state) use(all);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(all.size()));
}

template <typename Use>
void overReader(benchmark::State& state, Use use) {
  overText(state, [&](std::string_view all) {
    text::LineReader in(std::make_unique<TextFile>(all));
    use(in);
  });
}

void wholeLines(benchmark::State& state) {
  overReader(state, [](text::LineReader& in) {
    while (!in.atEnd()) benchmark::DoNotOptimize(in.line());
  });
}

void fields(benchmark::State& state) {
  overReader(state, [](text::LineReader& in) {
    while (!in.atEnd()) benchmark::DoNotOptimize(in.field());
  });
}

void skippedLines(benchmark::State& state) {
  static const text::LineFilter filter{text::anywhere("targetGeom"),
                                       text::anywhere("valueOpDeltaAdd"), text::atStart("actor")};
  overReader(state, [](text::LineReader& in) { benchmark::DoNotOptimize(in.skipLines(filter)); });
}

void lineCount(benchmark::State& state) {
  overText(state, [](std::string_view all) { benchmark::DoNotOptimize(text::countLines(all)); });
}

void conventionalEndings(benchmark::State& state) {
  overText(state, [](std::string_view all) {
    benchmark::DoNotOptimize(text::hasConventionalEndings(all));
  });
}

BENCHMARK(wholeLines);
BENCHMARK(fields);
BENCHMARK(skippedLines);
BENCHMARK(lineCount);
BENCHMARK(conventionalEndings);

}  // namespace
