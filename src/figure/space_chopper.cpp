#include "figure/space_chopper.h"

#include "text/columns.h"
#include "text/rewrite_pass.h"

namespace norvik::figure {

namespace {

constexpr std::string_view kScratch = "Chop.doc";

}  // namespace

void SpaceChopper(front::Session& session, const std::string& path) {
  text::RewritePass pass(session.disk, path, kScratch);
  const text::LineFilter indented{text::atStart(" ")};
  for (;;) {
    pass.copyLines(indented);
    if (pass.in().atEnd()) break;
    const auto line = pass.in().line();
    pass.out().line(line.starts_with(' ') ? text::from(line, 2) : line);
  }
  pass.finish();
  session.disk.replace(kScratch, path);
}

}  // namespace norvik::figure
