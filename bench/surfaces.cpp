// Drawing on a surface of the size of the mesh views.

#include "graphics/bmp.h"
#include "graphics/crc32.h"
#include "graphics/surface.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <random>
#include <vector>

namespace {

using norvik::graphics::PenMode;
using norvik::graphics::Point;
using norvik::graphics::Surface;

constexpr int kSide = 600;
constexpr std::size_t kQuads = 1'000'000;
constexpr norvik::graphics::Colour kColour = 0x3060C0;

using Quad = std::array<Point, 4>;

/// Quads all over the surface, each corner in a quarter of its own around the middle, up to
/// `reach` pixels away.
std::vector<Quad> quads(int reach) {
  std::mt19937 random(254);
  const auto below = [&](int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
  };
  std::vector<Quad> result(kQuads);
  for (Quad& quad : result) {
    const Point middle{below(kSide), below(kSide)};
    const auto away = [&] { return below(reach + 1); };
    quad = {
        Point{middle.x - away(), middle.y - away()}, Point{middle.x + away(), middle.y - away()},
        Point{middle.x + away(), middle.y + away()}, Point{middle.x - away(), middle.y + away()}};
  }
  return result;
}

/// A million of them.
void polygons(benchmark::State& state, PenMode mode) {
  const auto all = quads(static_cast<int>(state.range(0)));
  Surface surface(kSide, kSide);
  surface.setPenMode(mode);
  for (auto step : state) {
    for (const Quad& quad : all) surface.polygon(quad, kColour);
    benchmark::DoNotOptimize(surface.pixels().data());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(all.size()));
}

void polygonOfManyCorners(benchmark::State& state) {
  std::mt19937 random(254);
  std::vector<Point> corners(static_cast<std::size_t>(state.range(0)));
  for (Point& corner : corners) {
    corner = {static_cast<int>(random() % kSide), static_cast<int>(random() % kSide)};
  }
  Surface surface(kSide, kSide);
  for (auto step : state) surface.polygon(corners, kColour);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// From anywhere to anywhere, with ends so far outside that only clipping keeps the time low.
void lines(benchmark::State& state) {
  const auto all = quads(static_cast<int>(state.range(0)));
  Surface surface(kSide, kSide);
  for (auto step : state) {
    for (const Quad& quad : all) surface.line(quad[0], quad[2], kColour);
    benchmark::DoNotOptimize(surface.pixels().data());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(all.size()));
}

void dots(benchmark::State& state) {
  const auto all = quads(0);
  Surface surface(kSide, kSide);
  for (auto step : state) {
    for (const Quad& quad : all) surface.dot(quad[0], kColour);
    benchmark::DoNotOptimize(surface.pixels().data());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(all.size()));
}

void checkSum(benchmark::State& state) {
  const Surface surface(kSide, kSide);
  for (auto step : state) {
    benchmark::DoNotOptimize(norvik::graphics::crc32(surface.rgbBytes()));
  }
}

void bmp(benchmark::State& state) {
  const Surface surface(kSide, kSide);
  for (auto step : state) benchmark::DoNotOptimize(norvik::graphics::bmpBytes(surface));
}

BENCHMARK_CAPTURE(polygons, copied, PenMode::copy)
    ->Arg(2)
    ->Arg(10)
    ->Arg(30)
    ->Arg(100)
    ->Arg(300)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(polygons, exclusiveOr, PenMode::exclusiveOr)
    ->Arg(10)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(polygonOfManyCorners)->Arg(9)->Arg(1000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(lines)->Arg(10)->Arg(300)->Arg(1'000'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(dots)->Unit(benchmark::kMillisecond);
BENCHMARK(checkSum)->Unit(benchmark::kMillisecond);
BENCHMARK(bmp)->Unit(benchmark::kMillisecond);

}  // namespace
