#include "builders/figures/null_figure.h"

#include "front/finished_file.h"
#include "text/columns.h"
#include "text/line_copy.h"
#include "text/rewrite_pass.h"

namespace norvik::builders {

namespace {

using text::anywhere;

constexpr std::string_view kBlanks = " \t";

std::string_view withoutBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool isFigure(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  return line == "figure";
}

class NullFigure {
 public:
  NullFigure(front::Session& session, text::LineReader& in, text::LineWriter& out)
      : session_(session), in_(in), out_(out) {}

  void build() {
    copyParts();
    copyName();
    copyThrough("allowsBending");
    copyThrough("aterial");
    copyThrough("displayMode");
    text::copyRest(in_, out_);
  }

 private:
  /// Every line with a colon becomes one of figure 1, be it a path: what stands behind the colon
  /// goes.
  void write(std::string_view line) {
    const auto colon = text::column(line, ":");
    if (colon == 0) return out_.line(line);
    out_.line(text::leftmost(line, colon), "1");
  }

  /// Up to the figure's own section, without what the parts load.
  void copyParts() {
    static const text::LineFilter stops{anywhere("storageOffset"), anywhere("geomHandlerGeom"),
                                        anywhere(":"), anywhere("figure")};
    for (bool done = false; !done;) {
      text::copyLines(in_, out_, stops);
      const auto line = in_.line();
      if (text::holds(line, "storageOffset") || text::holds(line, "geomHandlerGeom")) continue;
      write(line);
      done = isFigure(line);
    }
  }

  void copyName() {
    for (bool done = false; !done;) {
      const std::string line{in_.line()};
      if (text::begins(line, "\tname")) checkName(line);
      write(line);
      done = text::holds(line, "displayOn");
    }
  }

  void checkName(std::string_view line) {
    constexpr std::string_view kHead = "\tname";
    if (line == "\tname    Figure 1") return;
    const std::string name{withoutBlanks(line.substr(kHead.size()))};
    session_.front.messageBox(
        "To use a null loader, your figure must be \"Figure 1\", your figure is called " + name +
            ",be sure to do a find/replace in the Editor to fix this.",
        "Note!", front::kExclamation);
  }

  void copyThrough(std::string_view token) {
    const text::LineFilter stops{anywhere(":"), anywhere(token)};
    for (bool done = false; !done;) {
      text::copyLines(in_, out_, stops);
      const auto line = in_.line();
      done = text::holds(line, token);
      write(line);
    }
  }

  front::Session& session_;
  text::LineReader& in_;
  text::LineWriter& out_;
};

void makeNullFigure(front::Session& session) {
  const std::string& figure = session.opening.OpenedPath;
  if (text::extension(figure) != "cr2") {
    session.front.messageBox("CR2 files only!", "Error!", front::kCritical);
    return;
  }
  const std::string result = std::string{text::before(figure, ".")} + "_Null.cr2";
  text::keepApart(session.disk, figure, result);
  session.hourglass(true);
  text::LineReader in(session.disk, figure);
  text::ignoringErrors([&] { session.disk.remove(result); });
  text::LineWriter out(session.disk, result);
  NullFigure(session, in, out).build();
  out.close();
  session.hourglass(false);
  session.front.tellOf({.path = result});
  session.front.messageBox("Null Figure CR2 saved as " + result, "Note", front::kOk);
}

}  // namespace

void wireNullFigure(front::Session& session) {
  session.opening.menuNullFig.clicked.add([&session] { makeNullFigure(session); });
}

}  // namespace norvik::builders
