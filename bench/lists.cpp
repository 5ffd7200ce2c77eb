// How lists fill: the time must grow as the number of entries does.

#include "figure/actor_lister.h"
#include "figure/map_lister.h"
#include "figure/path_lister.h"
#include "headless/script_front_end.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <ostream>
#include <unistd.h>

namespace {

using norvik::front::Session;

/// A figure in the folder for temporary files, gone with the object.
class TemporaryFigure {
 public:
  explicit TemporaryFigure(const std::function<void(std::ostream&)>& write) {
    name_ = (std::filesystem::temp_directory_path() /
             ("norvik-bench-" + std::to_string(::getpid()) + ".cr2"))
                .string();
    std::ofstream out(name_, std::ios::binary);
    write(out);
  }
  TemporaryFigure(const TemporaryFigure&) = delete;
  TemporaryFigure& operator=(const TemporaryFigure&) = delete;
  ~TemporaryFigure() { std::filesystem::remove(name_); }

  std::string path() const { return "Z:" + name_; }

 private:
  std::string name_;
};

void fill(benchmark::State& state, const std::string& head, const std::string& entryBegin,
          const std::string& entryEnd,
          const std::function<void(Session&, const std::string&)>& lister) {
  const TemporaryFigure figure([&](std::ostream& out) {
    out << head;
    for (std::int64_t i = 0; i < state.range(0); ++i) out << entryBegin << i << entryEnd;
  });
  const auto host = norvik::text::makePosixHost();
  norvik::text::Disk disk(*host);
  disk.mount('Z', "/");
  std::ostream nowhere(nullptr);
  norvik::headless::Transcript transcript(nowhere);
  norvik::headless::Outcome outcome;
  norvik::headless::ScriptFrontEnd front(transcript, outcome, {});
  norvik::front::Settings settings;
  for (auto step : state) {
    norvik::front::Opening opening;
    Session session(front, disk, settings, opening);
    lister(session, figure.path());
    const auto listed = std::max(
        {opening.ListActors.count(), opening.ListAllTexMaps.count(), opening.ListPropObj.count()});
    if (listed != state.range(0)) state.SkipWithError("entries are missing");
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
  state.SetComplexityN(state.range(0));
}

void actors(benchmark::State& state) {
  fill(state, "figureResFile a\r\n", "actor part", ":1\r\n\t{\r\n\tname a\r\n",
       norvik::figure::ListTheActors);
}

void textures(benchmark::State& state) {
  fill(state, "material skin\r\n", "\ttextureMap map", ".bmp\r\n", norvik::figure::FindMapLocs);
}

void props(benchmark::State& state) {
  fill(state, "figureResFile Geometries:a.obj\r\n", "prop hat",
       "\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n", norvik::figure::OpenCR2);
}

void sizes(benchmark::internal::Benchmark* bench) {
  bench->Arg(10'000)->Arg(50'000)->Arg(100'000)->Complexity(benchmark::oN);
  bench->Unit(benchmark::kMillisecond);
}

BENCHMARK(actors)->Apply(sizes);
BENCHMARK(textures)->Apply(sizes);
BENCHMARK(props)->Apply(sizes);

}  // namespace
