#include "builders/transfer/extract_part.h"

#include "text/columns.h"
#include "text/line_on_hand.h"
#include "text/rewrite_pass.h"

namespace norvik::builders {

namespace {

constexpr int kExtracting = 69;
constexpr int kExtracted = 70;

/// Copies the two blocks. False for a part whose geometry stands in the figure.
bool copyBlocks(text::LineOnHand& in, text::LineWriter& out, const std::string& actor) {
  const auto isActor = [&](std::string_view line) { return line == actor; };
  out.line(in.readUntil(isActor, {actor}));
  for (int i = 0; i < 3; ++i) out.line(in.read());
  if (text::holds(in.line(), "Custom")) return false;
  out.line(in.read());
  out.line("*end geom*");

  out.line(in.readUntil(isActor, {actor}));
  if (!text::holds(in.line(), "locked")) {
    const bool found = in.copyTo(
        out, [](std::string_view line) { return text::holds(line, "locked"); }, {"locked"});
    if (found) out.line(in.line());
  }
  out.line(in.read());
  return true;
}

void extractPart(front::Session& session) {
  front::Opening& opening = session.opening;
  const std::string_view item = opening.ListActors.chosen();
  const std::string actor = "actor " + std::string{text::trimmed(text::before(item, "*"))};
  const std::string extract = opening.inProgramFolder(kBodyPartFile);
  session.hourglass(true);
  text::keepApart(session.disk, opening.OpenedPath, extract);
  text::ignoringErrors([&] { session.disk.remove(extract); });
  text::LineWriter out(session.disk, extract);
  text::LineOnHand in(session.disk, opening.OpenedPath, text::LineOnHand::Read::lines);
  const bool complete = copyBlocks(in, out, actor);
  out.close();
  session.hourglass(false);
  if (!complete) {
    session.front.messageBox("Can't use this body part, it has geometry embedded in the CR2.",
                             "Error!", front::kOk);
  }
  opening.ListActors.clear();
  opening.ListActors.hide();
  if (!complete) return;
  session.front.messageBox("Now choose your destination CR2 and drag it to the picture.", "Next...",
                           front::kOk);
  opening.Mode = kExtracted;
}

}  // namespace

void wireExtractPart(front::Session& session) {
  session.opening.ListActors.clicked.add([&session] {
    if (session.opening.Mode == kExtracting) extractPart(session);
  });
}

}  // namespace norvik::builders
