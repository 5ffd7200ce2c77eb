#include "mesh/low_mesh.h"

#include "mesh/obj_number.h"
#include "text/columns.h"
#include "text/file_error.h"
#include "text/line_reader.h"
#include "text/line_writer.h"
#include "text/number_text.h"
#include "text/rewrite_pass.h"

namespace norvik::obj {

namespace {

constexpr std::size_t kFirstOfX = 3;

/// Takes the text up to the next blank off the front, the blank included in both.
std::string_view takeWithBlank(std::string_view& text) {
  const std::string_view word = text::leftmost(text, text::before(text, " ").size() + 1);
  text.remove_prefix(word.size());
  return word;
}

std::string raisedLine(std::string_view line) {
  std::string_view rest = text::from(line, kFirstOfX);
  const std::string_view x = takeWithBlank(rest);
  const std::string_view y = takeWithBlank(rest);
  return "v " + std::string{x} + raisedHeight(y) + " " + std::string{rest};
}

}  // namespace

std::string raisedHeight(std::string_view y) {
  constexpr double kTen = 10;
  const std::size_t point = text::column(y, ".");
  const std::string_view whole = text::leftmost(y, point);
  const std::string_view fraction = text::from(y, point + 1);
  double divisor = 1;
  for (std::string_view rest = fraction; text::begins(rest, "0"); rest.remove_prefix(1)) {
    divisor *= kTen;
  }
  const double raised = leadingNumber(whole) + leadingNumber(fraction) / divisor;
  return std::string{text::trimmed(text::numberText(toSingle(raised)))};
}

void rewriteLowMesh(front::Session& session, const std::string& path) {
  const std::string target = session.opening.inProgramFolder(kParamFile);
  text::keepApart(session.disk, path, target);
  text::ignoringErrors([&] { session.disk.remove(target); });
  text::LineWriter out(session.disk, target);
  text::LineReader in(session.disk, path);
  while (!in.atEnd()) {
    const std::string_view line = in.line();
    if (text::begins(line, "v ")) {
      out.line(raisedLine(line));
    } else {
      out.line(line);
    }
  }
  out.close();
}

}  // namespace norvik::obj
