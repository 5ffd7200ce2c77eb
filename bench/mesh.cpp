// Times the read of a mesh, with its store and its three flat views, against a plain OBJ loader
// that only fills arrays, and the merge of the mesh with itself behind that.
// Usage: norvik-mesh FOLDER FILE [RUNS]
//        norvik-mesh --read FOLDER FILE      one read by the workshop, for the timing
//        norvik-mesh --merge FOLDER FILE     the same, a second mesh, the merge and its view
//        norvik-mesh --load FOLDER FILE      one by the loader

#include "bench_desk.h"
#include "child.h"
#include "front/form_obj.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <tiny_obj_loader.h>

namespace {

using norvik::bench::Bench;
using norvik::bench::Cost;
using norvik::bench::mustHold;
using norvik::bench::runCommand;

constexpr double kLimit = 1.2;  // times of the loader

norvik::front::FormOBJ& read(Bench& bench) {
  bench.disk.makeFolders("C:\\Norvik");
  auto* form = dynamic_cast<norvik::front::FormOBJ*>(bench.session.findForm("FormOBJ"));
  if (form == nullptr) throw std::runtime_error("no workshop");
  bench.opening.LabelOBJFileName.setCaption(bench.path);
  bench.session.load(*form);
  form->LabelView.clicked.raise();
  mustHold(bench.disk.size("C:\\Norvik\\FArray.txt") > 0, "no faces were read");
  return *form;
}

void merge(Bench& bench, const std::string& file) {
  norvik::front::FormOBJ& form = read(bench);
  bench.choose(file);
  form.PictureAddOBJ.released.raise({});
  form.PictureMerge.released.raise({});
  mustHold(bench.opening.LabelOBJFileName.caption() == "C:\\Norvik\\MergeTest.obj",
           "nothing merged");
}

void load(const std::string& folder, const std::string& file) {
  tinyobj::attrib_t attributes;
  std::vector<tinyobj::shape_t> shapes;
  std::vector<tinyobj::material_t> materials;
  std::string warnings;
  std::string errors;
  constexpr bool kTriangulate = false;
  const std::string path = folder + "/" + file;
  if (!tinyobj::LoadObj(&attributes, &shapes, &materials, &warnings, &errors, path.c_str(), nullptr,
                        kTriangulate) ||
      shapes.empty()) {
    throw std::runtime_error("the loader read nothing: " + errors);
  }
}

struct Costs {
  std::vector<double> milliseconds;
  double megabytes = 0;

  void add(const Cost& cost) {
    milliseconds.push_back(cost.milliseconds);
    megabytes = std::max(megabytes, cost.megabytes);
  }
  double median() {
    const auto middle = milliseconds.begin() + static_cast<std::ptrdiff_t>(milliseconds.size() / 2);
    std::nth_element(milliseconds.begin(), middle, milliseconds.end());
    return *middle;
  }
};

void compare(const std::string& folder, const std::string& file, int runs) {
  const std::string self = "/proc/self/exe";
  Costs own;
  Costs loader;
  Costs merged;
  for (int i = 0; i < runs; ++i) {
    loader.add(runCommand({self, "--load", folder, file}));
    own.add(runCommand({self, "--read", folder, file}));
    merged.add(runCommand({self, "--merge", folder, file}));
  }
  const double times = own.median() / loader.median();
  std::printf("| %-20s | %7s | %6s |\n|---|--:|--:|\n", "", "ms", "MB");
  std::printf("| %-20s | %7.1f | %6.1f |\n", "loader, into arrays", loader.median(),
              loader.megabytes);
  std::printf("| %-20s | %7.1f | %6.1f |\n", "read, store, 3 views", own.median(), own.megabytes);
  std::printf("| %-20s | %7.1f | %6.1f |\n", "and a merge, viewed", merged.median(),
              merged.megabytes);
  std::printf("\n%.2f times the loader's time, of %.0f%s\n", times, kLimit,
              times <= kLimit ? "" : ": MISSED");
}

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string> words(arguments + 1, arguments + count);
  try {
    if (words.size() == 3 && words[0] == "--read") {
      Bench bench(words[1], words[2]);
      read(bench);
    } else if (words.size() == 3 && words[0] == "--merge") {
      Bench bench(words[1], words[2]);
      merge(bench, words[2]);
    } else if (words.size() == 3 && words[0] == "--load") {
      load(words[1], words[2]);
    } else if (words.size() == 2 || words.size() == 3) {
      constexpr int kRuns = 7;
      compare(words[0], words[1],
              words.size() == 3 ? std::max(1, std::atoi(words[2].c_str())) : kRuns);
    } else {
      std::fprintf(stderr, "usage: norvik-mesh FOLDER FILE [RUNS]\n");
      return 2;
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "norvik-mesh: %s\n", error.what());
    return 1;
  } catch (const norvik::text::FileError& error) {
    std::fprintf(stderr, "norvik-mesh: %.*s\n", static_cast<int>(error.text().size()),
                 error.text().data());
    return 1;
  }
  return EXIT_SUCCESS;
}
