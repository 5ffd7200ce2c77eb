#include "passes.h"

#include "pass_groups.h"

#include <iterator>

namespace norvik::bench {

Pass pass(std::string name, Kind kind, Figure figure, const Work& work) {
  return {std::move(name), kind, figure,
          [work](const std::string& folder, const std::string& file) {
            Bench bench(folder, file);
            work(bench);
          }};
}

std::string fileOf(Figure figure) {
  switch (figure) {
    case Figure::plain:
    case Figure::replaced:
      return "figure.cr2";
    case Figure::lfEnds:
      return "lf.cr2";
    case Figure::oneBlank:
      return "one-blank.cr2";
    case Figure::blanks:
      return "blanks.cr2";
    case Figure::scene:
      return "scene.pz3";
    case Figure::embedded:
      return "embedded.cr2";
    case Figure::mesh:
      return "mesh.obj";
  }
  return {};
}

bool isReplaced(Figure figure) {
  return figure != Figure::plain && figure != Figure::lfEnds && figure != Figure::embedded;
}

const std::vector<Pass>& passes() {
  static const std::vector<Pass> all = [] {
    std::vector<Pass> result;
    for (const auto group : {figurePasses, channelPasses, dialPasses, linkPasses, builderPasses,
                             materialPasses, posePasses, meshPasses}) {
      std::vector<Pass> rows = group();
      result.insert(result.end(), std::make_move_iterator(rows.begin()),
                    std::make_move_iterator(rows.end()));
    }
    return result;
  }();
  return all;
}

}  // namespace norvik::bench
