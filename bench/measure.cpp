#include "measure.h"

#include "child.h"

#include <algorithm>
#include <filesystem>

namespace norvik::bench {

namespace {

namespace fs = std::filesystem;

double median(std::vector<double> numbers) {
  if (numbers.empty()) return 0;
  const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
  std::nth_element(numbers.begin(), middle, numbers.end());
  return *middle;
}

/// A pass that replaces its file gets another name for it, so that the next run finds the same
/// file, and that no time goes into the freeing of an old one.
std::string workFile(const std::string& original) {
  return "work" + original.substr(original.rfind('.'));
}

void clear(const std::string& folder) {
  for (const char* made :
       {"cp.out", "tool.out", "f.new", "Chop.doc", "saved.cr2", "copied.cr2", "Norvik/cr2temp.txt",
        "Norvik/SaveMorph.txt", "Norvik/InsertMorph.txt", "figureNew.pz2", "mat.pz2", "work.cam",
        "work.bak", "Norvik/Mor.txt", "Norvik/Combine.pz2"}) {
    fs::remove(folder + "/" + made);
  }
}

}  // namespace

Result measure(const Pass& pass, const Setup& setup) {
  const std::string original = setup.folder + "/" + fileOf(pass.figure);
  const bool inPlace = isReplaced(pass.figure);
  const std::string file = inPlace ? workFile(original) : fileOf(pass.figure);
  const std::string work = setup.folder + "/" + workFile(original);
  const std::vector<std::string> cp{"cp", original, setup.folder + "/cp.out"};
  const std::vector<std::string> own{setup.self, "--pass", pass.name, setup.folder, file};
  std::vector<std::string> tool;
  std::string toolOutput = "/dev/null";
  if (pass.kind == Kind::read) tool = {"wc", "-l", original};
  if (pass.kind == Kind::substitution) {
    tool = {"sed", "s/textureMap .*/textureMap \"C:Poser:Runtime:textures:new.bmp\"\\r/", original};
    toolOutput = setup.folder + "/tool.out";
  }
  if (pass.kind == Kind::arithmetic) {
    tool = {"awk", "/^v /{printf \"v %.6f %.6f %.6f\\n\", $2*2, $3*2, $4*2; next} !/^vn/",
            original};
    toolOutput = setup.folder + "/tool.out";
  }

  std::vector<double> times;
  std::vector<double> cpTimes;
  std::vector<double> toolTimes;
  Result result;
  runCommand({"wc", "-l", original});  // into the page cache
  for (int i = 0; i < setup.runs; ++i) {
    clear(setup.folder);
    cpTimes.push_back(runCommand(cp).milliseconds);
    if (!tool.empty()) toolTimes.push_back(runCommand(tool, toolOutput).milliseconds);
    clear(setup.folder);
    if (inPlace) {
      fs::remove(work);
      fs::create_hard_link(original, work);
    }
    const Cost cost = runCommand(own);
    times.push_back(cost.milliseconds);
    result.memory = std::max(result.memory, cost.megabytes);
  }
  clear(setup.folder);
  fs::remove(work);
  result.passTime = median(times);
  result.cpTime = median(cpTimes);
  result.toolTime = median(toolTimes);
  return result;
}

}  // namespace norvik::bench
