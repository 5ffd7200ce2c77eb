#include "erc/link_place.h"

#include "figure/figure_number.h"
#include "text/columns.h"

namespace norvik::erc {

namespace {

using text::anywhere;
using text::atStart;
using Cut = std::optional<std::string>;

constexpr std::string_view kMorph = "targetGeom ";
constexpr std::string_view kActor = "actor ";
constexpr std::string_view kFigure = "figure ";

/// A text up to `less` characters in front of its colon.
Cut upToColon(std::string_view text, std::size_t less) {
  const auto colon = text::column(text, ":");
  if (colon < less + 1) return std::nullopt;
  return std::string{text::leftmost(text, colon - 1 - less)};
}

/// What stands between the axis and the colon: "xrot head:1 " is head.
Cut jointActor(std::string_view text) {
  constexpr std::size_t kActorColumn = 6;
  const auto colon = text::column(text, ":");
  if (colon < kActorColumn) return std::nullopt;
  return std::string{text::leftmost(text::from(text, kActorColumn), colon - kActorColumn)};
}

/// What stands behind the first blank, less the figure's number with its colon and blank.
Cut actorOfMorphLink(std::string_view text) {
  constexpr std::size_t kNumberLength = 3;
  const auto blank = text::column(text, " ");
  const auto behind = text::from(text, blank + 1);
  if (blank == 0 || behind.size() < kNumberLength) return std::nullopt;
  return std::string{text::withoutLast(behind, kNumberLength)};
}

/// The text from its first blank on, up to its colon.
Cut blankAndActor(std::string_view text) {
  const Cut front = upToColon(text, 0);
  if (!front || !text::holds(*front, " ")) return std::nullopt;
  return std::string{text::from(*front, text::column(*front, " "))};
}

std::optional<Target> lineThatHolds(std::string_view head, const Cut& name, int hit) {
  if (!name) return std::nullopt;
  return Target{std::string{head} + *name, hit, std::nullopt};
}

std::optional<Target> conformingTarget(std::string_view slaved) {
  const Cut channel = upToColon(slaved, 0);
  if (!channel) return std::nullopt;
  return Target{*channel, 1, std::string{figure::figureNumber(slaved)}};
}

/// The search for a target's line.
class Search {
 public:
  Search(const Target& target, text::LineReader& in, text::LineWriter* out)
      : target_(target), in_(in), out_(out), open_(!target.figure) {}

  std::string run() {
    const text::LineFilter openers{atStart(kActor), atStart(kFigure)};
    const text::LineFilter stops{anywhere(target_.text), atStart(kFigure)};
    std::string_view line;
    do {
      if (owed_ == 0) pass(open_ ? stops : openers);
      line = next();
    } while (!isTarget(line));
    std::string target{line};
    // A figure's line is written with the two behind it, whatever they are.
    for (; out_ != nullptr && owed_ > 0; --owed_) out_->line(in_.line());
    return target;
  }

 private:
  void pass(const text::LineFilter& filter) {
    in_.handOnLines(filter, [this](std::string_view lines) {
      if (out_ != nullptr) out_->lines(lines);
    });
  }

  std::string_view next() {
    const auto line = in_.line();
    if (out_ != nullptr) out_->line(line);
    if (owed_ > 0) {
      --owed_;
    } else if (!figurePassed_ && text::begins(line, kFigure)) {
      figurePassed_ = true;
      owed_ = 2;
    }
    return line;
  }

  bool isTarget(std::string_view line) {
    if (!open_) {
      open_ = text::begins(line, kActor) && figure::figureNumber(line) == *target_.figure;
      return false;
    }
    if (target_.figure) return line.ends_with(target_.text);
    return text::holds(line, target_.text) && ++hits_ == target_.hit;
  }

  const Target& target_;
  text::LineReader& in_;
  text::LineWriter* out_;
  bool open_;  ///< whether a line may be the target
  int hits_ = 0;
  bool figurePassed_ = false;
  int owed_ = 0;  ///< lines that belong to the figure's
};

}  // namespace

std::optional<Target> targetOf(const KindOfLink& kind, const std::string& slaved) {
  switch (kind.routine) {
    case Routine::PBM: {
      const bool numbered = text::holds(slaved, ":");
      return lineThatHolds(kMorph, numbered ? upToColon(slaved, 1) : Cut{slaved}, 1);
    }
    case Routine::JCM:
      return lineThatHolds(kMorph, upToColon(slaved, 1), 1);
    case Routine::CM:
      return conformingTarget(slaved);
    case Routine::JCJ: {
      const bool morphControls = kind.kind == Kind::MCJ;
      return lineThatHolds(kActor, morphControls ? actorOfMorphLink(slaved) : jointActor(slaved),
                           2);
    }
    case Routine::JCT:
      if (kind.kind == Kind::TCM) return lineThatHolds(kMorph, upToColon(slaved, 0), 1);
      return lineThatHolds("actor", blankAndActor(slaved), 2);
  }
  return std::nullopt;
}

std::string passTarget(const Target& target, text::LineReader& in, text::LineWriter* out) {
  return Search(target, in, out).run();
}

std::optional<std::string> channelOf(const KindOfLink& kind, const FormECM& form) {
  constexpr std::size_t kChannelLength = 4;
  const bool joint = kind.routine == Routine::JCJ || kind.kind == Kind::TCJ;
  if (joint) return std::string{text::leftmost(form.SlavedChannel, kChannelLength)};
  if (kind.routine != Routine::JCT || kind.kind == Kind::TCM) return std::nullopt;
  return std::string{text::leftmost(form.SecondChannel, kChannelLength)};
}

}  // namespace norvik::erc
