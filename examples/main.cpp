#include "cr2_writer.h"
#include "figure.h"
#include "obj_writer.h"
#include "options.h"
#include "output_file.h"
#include "sample.h"

#include <cstdlib>
#include <iostream>
#include <span>

namespace {

namespace examples = norvik::examples;
using examples::Options;

constexpr int exitCannotWrite = 1;
constexpr int exitUsage = 2;

// A large file is to be large by its deltas, as real figures are, so its parts are finer.
constexpr std::int64_t sampleVertices = 32;
constexpr std::int64_t largeFileVertices = 400;

std::size_t partsOf(const Options& options) {
  return static_cast<std::size_t>(
      options.parts.value_or(static_cast<std::int64_t>(examples::classicPartCount)));
}

examples::Density densityOf(const Options& options) {
  if (options.faces) return examples::densityForFaces(*options.faces, partsOf(options));
  return examples::densityForVertices(static_cast<int>(
      options.vertices.value_or(options.megabytes ? largeFileVertices : sampleVertices)));
}

// What was made goes to the error stream, so that a file can be written to the standard output.
void makeCr2(const Options& options) {
  examples::FigureSettings settings;
  settings.set = options.isSource ? examples::MorphSet::second : examples::MorphSet::first;
  settings.parts = partsOf(options);
  settings.morphs =
      static_cast<std::size_t>(options.morphs.value_or(static_cast<std::int64_t>(settings.morphs)));
  settings.density = densityOf(options);
  settings.seed = static_cast<std::uint64_t>(options.seed.value_or(1));
  settings.fileSize = static_cast<std::uint64_t>(options.megabytes.value_or(0)) * 1'000'000;
  examples::TextFile file(options.target, options.lineEnd);
  const std::size_t morphChannels = examples::writeCr2(file, examples::makeFigure(settings));
  const std::uint64_t size = file.size();
  file.finish();
  std::cerr << "made " << options.target.string() << ": " << size << " bytes, " << settings.parts
            << " parts, " << morphChannels << " morph channels\n";
}

void makeObj(const Options& options) {
  examples::TextFile file(options.target, options.lineEnd);
  const examples::ObjCounts counts =
      examples::writeBodyObj(file, examples::bodyPlan(partsOf(options)), densityOf(options));
  const std::uint64_t size = file.size();
  file.finish();
  std::cerr << "made " << options.target.string() << ": " << size << " bytes, " << counts.vertices
            << " vertices, " << counts.faces << " faces\n";
}

void run(const Options& options) {
  switch (options.job) {
    case examples::Job::help:
      std::cout << examples::helpText;
      break;
    case examples::Job::sample:
      examples::writeSample(options.target);
      break;
    case examples::Job::cr2:
      makeCr2(options);
      break;
    case examples::Job::obj:
      makeObj(options);
      break;
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  try {
    run(examples::parseOptions(std::span(argv, static_cast<std::size_t>(argc)).subspan(1)));
  } catch (const examples::UsageError& error) {
    std::cerr << "make_figure: " << error.what() << "\nTry make_figure --help.\n";
    return exitUsage;
  } catch (const examples::WriteError& error) {
    std::cerr << "make_figure: " << error.what() << '\n';
    return exitCannotWrite;
  }
  return EXIT_SUCCESS;
}
