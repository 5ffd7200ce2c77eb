#include "channels/actor_block.h"

#include "text/columns.h"
#include "text/line_search.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kActor = "actor";
constexpr int kBlocks = 2;

}  // namespace

ActorLine ActorLine::equal(std::string_view name) {
  return {Test::equal, "actor " + std::string{name}, name};
}

ActorLine ActorLine::beginning(std::string_view name) {
  return {Test::beginning, "actor " + std::string{name}, name};
}

ActorLine ActorLine::holding(std::string_view name) {
  return {Test::holding, std::string{kActor}, name};
}

bool ActorLine::fits(std::string_view line) const {
  switch (test_) {
    case Test::equal:
      return line == start_;
    case Test::beginning:
      return text::begins(line, start_);
    case Test::holding:
      return text::begins(line, start_) && text::holds(line, name_);
  }
  return false;
}

void passThroughSecond(text::LineReader& in, const ActorLine& actor) {
  for (int block = 0; block < kBlocks; ++block) {
    text::passThrough(in, actor.filter(), [&](std::string_view line) { return actor.fits(line); });
  }
}

void copyThroughSecond(text::RewritePass& pass, const ActorLine& actor) {
  for (int block = 0; block < kBlocks; ++block) {
    text::copyThrough(pass, actor.filter(),
                      [&](std::string_view line) { return actor.fits(line); });
  }
}

}  // namespace norvik::channels
