#include "channels/removal/part_removal.h"

#include "text/line_search.h"

namespace norvik::channels {

namespace {

using text::anywhere;
using text::atStart;

constexpr std::string_view kFigure = "figure";

class PartRemoval {
 public:
  PartRemoval(text::RewritePass& pass, const std::string& name)
      : pass_(pass), in_(pass.in()), out_(pass.out()), name_(name), actorLine_("actor " + name) {}

  void run() {
    dropFirstBlock();
    if (!cutReferences()) return;
    mendFigure();
  }

 private:
  bool names(std::string_view line) const { return text::holds(line, name_); }

  void dropFirstBlock() {
    text::copyUpTo(pass_, {atStart(actorLine_)},
                   [this](std::string_view line) { return line == actorLine_; });
    static_cast<void>(in_.line());
    const bool bare = in_.line().empty();
    if (!bare) static_cast<void>(in_.line());
    static_cast<void>(in_.line());
  }

  /// Copies up to the second block and drops that. False at the end of the file.
  bool cutReferences() {
    const text::LineFilter stops{anywhere(name_)};
    while (!in_.atEnd()) {
      pass_.copyLines(stops);
      if (in_.atEnd()) return false;
      const auto line = in_.line();
      if (line == actorLine_) {
        dropSecondBlock();
        return true;
      }
      if (names(line)) {
        out_.line(text::withoutLast(line, name_.size()), "NULL");
      } else {
        out_.line(line);
      }
    }
    return false;
  }

  /// The line directly behind the actor line is not taken for the figure section.
  void dropSecondBlock() {
    static const text::LineFilter ends{atStart("actor"), atStart(kFigure)};
    std::string_view line = in_.line();
    while (!text::begins(line, "actor")) {
      in_.passLines(ends);
      line = in_.line();
      if (text::begins(line, kFigure)) {
        inFigure_ = true;
        break;
      }
    }
    out_.line(line);
  }

  void mendFigure() {
    static const text::LineFilter figureLine{atStart(kFigure)};
    while (!in_.atEnd()) {
      if (!inFigure_) pass_.copyLines(figureLine);
      if (in_.atEnd()) return;
      std::string line{in_.line()};
      if (text::begins(line, kFigure)) line = enterFigure(line);
      if (inFigure_ && mendChild(line)) return dropWelds();
      out_.line(line);
    }
  }

  /// Copies the section's head and returns the line behind it. A block that the removed one ran
  /// into has no head: its pairs are taken one line off.
  std::string enterFigure(const std::string& line) {
    constexpr int kHead = 3;
    inFigure_ = true;
    out_.line(line);
    for (int i = 0; i < kHead; ++i) {
      const auto head = in_.line();
      replacement_ = "\t\t\tBODY:" + std::string{text::rightmost(head, 1)};
      out_.line(head);
    }
    return std::string{in_.line()};
  }

  /// Looks at a child and its parent. True when the entry of the removed part is mended; else
  /// `line` is still to be written.
  bool mendChild(std::string& line) {
    if (!names(line)) {
      out_.line(line);
      line = in_.line();
      replacement_ = line;
    }
    if (!names(line)) return false;
    static_cast<void>(in_.line());
    out_.line(in_.line());
    static_cast<void>(in_.line());
    out_.line(replacement_);
    return true;
  }

  void dropWelds() {
    const text::LineFilter stops{anywhere(name_)};
    while (!in_.atEnd()) {
      pass_.copyLines(stops);
      if (in_.atEnd()) return;
      const auto line = in_.line();
      if (text::holds(line, "eld") && names(line)) {
        static_cast<void>(in_.line());
        out_.line(in_.line());
      } else {
        out_.line(line);
      }
    }
  }

  text::RewritePass& pass_;
  text::LineReader& in_;
  text::LineWriter& out_;
  std::string name_;
  std::string actorLine_;
  std::string replacement_;  ///< what becomes the parent of the removed part's child
  bool inFigure_ = false;
};

}  // namespace

void removePart(text::RewritePass& pass, const std::string& name) {
  PartRemoval(pass, name).run();
  pass.finish();
}

}  // namespace norvik::channels
