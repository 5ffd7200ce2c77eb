#include "builders/figures/library_text.h"

#include "figure/figure_number.h"
#include "text/columns.h"

#include <unordered_set>
#include <utility>

namespace norvik::builders {

namespace {

using text::anywhere;
using text::atStart;

constexpr std::string_view kReference = "figureResFile";
constexpr std::string_view kActor = "actor ";
constexpr std::string_view kProp = "prop ";

/// The copy of a figure, up to its second geometry reference.
class FigureReference {
 public:
  FigureReference(text::RewritePass& pass, const std::string& reference)
      : in_(pass.in()), pass_(pass), reference_("figureResFile " + reference) {}

  void run() {
    static const text::LineFilter stops{anywhere(kReference), atStart(kActor), atStart(kProp)};
    bool first = true;
    for (;;) {
      pass(stops);
      if (in_.atEnd()) return;
      const std::string line{in_.line()};
      const bool actor = text::begins(line, kActor);
      if (text::holds(line, kReference) || (actor && (first || seen_.contains(line)))) {
        pass_.out().line(reference_);
        if (!std::exchange(first, false)) {
          if (actor) pass_.out().line(line);
          return pass_.copyRest();
        }
        if (actor) writeActor(line);
      } else if (actor) {
        writeActor(line);
      } else {
        copied_ = copied_ || text::begins(line, kProp);
        if (copied_) pass_.out().line(line);
      }
    }
  }

 private:
  void pass(const text::LineFilter& stops) {
    if (copied_) {
      pass_.copyLines(stops);
    } else {
      in_.passLines(stops);
    }
  }

  /// What follows up to the next part is left out.
  void writeActor(const std::string& line) {
    seen_.insert(line);
    copied_ = false;
    text::LineWriter& out = pass_.out();
    const auto name = text::before(figure::nameOnActorLine(line), ":");
    out.line(line);
    out.line("\t{");
    if (name != "BODY") {
      out.line("\tstorageOffset 0 0 0");
      out.line("\tgeomHandlerGeom 13 ", name);
    }
    out.line("\t}");
  }

  text::LineReader& in_;
  text::RewritePass& pass_;
  std::string reference_;
  bool copied_ = true;  ///< whether lines are copied: outside the actors' blocks
  std::unordered_set<std::string> seen_;
};

/// Passes over the block that begins at the next "{".
void passBlock(text::LineReader& in) {
  int depth = 0;
  bool begun = false;
  while (!begun || depth > 0) {
    const auto line = in.line();
    const auto first = line.find_first_not_of(" \t");
    if (first == std::string_view::npos) continue;
    if (line[first] == '{') {
      begun = true;
      ++depth;
    } else if (line[first] == '}') {
      --depth;
    }
  }
}

}  // namespace

bool isPropFile(std::string_view path) {
  const std::string kind = text::lowered(text::extension(path));
  return kind == "pp2" || kind == "hr2";
}

void referFigure(text::RewritePass& pass, const std::string& reference) {
  FigureReference(pass, reference).run();
}

void referProp(text::RewritePass& pass, std::string_view entry, const std::string& reference) {
  constexpr std::size_t kNameColumn = 6;
  static const text::LineFilter stops{atStart(kProp)};
  bool found = false;
  while (!found) {
    pass.copyLines(stops);
    const auto line = pass.in().line();
    found = text::begins(line, kProp) &&
            text::before(text::from(line, kNameColumn), ":") == text::before(entry, ":");
    pass.out().line(line);
  }
  text::LineWriter& out = pass.out();
  out.line("\t{");
  out.line("\tstorageOffset 0 0.3487 0");
  out.line("\tobjFileGeom 0 0 ", reference);
  out.line("\t}");
  passBlock(pass.in());
  pass.copyRest();
}

}  // namespace norvik::builders
