#include "figure/actor_lister.h"

#include "figure/actor_entry.h"
#include "text/columns.h"
#include "text/line_reader.h"
#include "text/number_text.h"

#include <set>

namespace norvik::figure {

namespace {

using text::anywhere;

constexpr std::size_t kComparedCaption = 20;
constexpr std::string_view kReference = "figureResFile";

bool hasNoReference(const std::string& path) {
  static const std::set<std::string, std::less<>> kinds{"fc2", "pz2", "pp2", "hr2"};
  return kinds.contains(text::lowered(text::extension(path)));
}

/// Reads up to the line that ends the search for the geometry. False at the end of the file.
bool findReference(text::LineReader& in, text::LineCount& count) {
  static const text::LineFilter ends{anywhere(kReference), text::atStart("actor BODY")};
  while (!in.atEnd()) {
    count.add(in.skipLines(ends));
    if (in.atEnd()) break;
    const auto line = in.line();
    ++count;
    if (text::begins(line, "actor BODY") || text::holds(line, kReference)) return true;
  }
  return false;
}

/// Steps over the storage section by fields, up to the one behind the next reference.
void passStorage(text::LineReader& in, text::LineCount& count) {
  // A line without a comma or quote is one field, so that the fields of skipped lines can be
  // counted.
  static const text::LineFilter stops{anywhere(kReference), anywhere(","), anywhere("\"")};
  bool found = false;
  while (!found) {
    count.add(in.skipLines(stops));
    found = text::holds(in.field(), kReference);
    ++count;
  }
  static_cast<void>(in.field());
  ++count;
}

std::string readEntry(text::LineReader& in, text::LineCount& count, std::string_view actorLine) {
  std::string entry = std::string{actorText(actorLine)} + " *" + text::numberText(count.asSingle());
  static_cast<void>(in.line());
  ++count;
  const bool storage = in.line().empty();
  ++count;
  if (storage) {
    entry = kStorageEntry;
    passStorage(in, count);
  }
  return indentedEntry(entry);
}

front::ListBox& targetList(front::Opening& opening) {
  const bool samePane = text::rightmost(opening.LabelFileName.caption(), kComparedCaption) ==
                        text::rightmost(opening.LabelChannelFileName.caption(), kComparedCaption);
  return samePane ? opening.ListActors : opening.ListChannels;
}

}  // namespace

void ListTheActors(front::Session& session, const std::string& path) {
  text::LineReader in(session.disk, path);
  text::LineCount count;
  if (!hasNoReference(path) && !findReference(in, count)) {
    session.front.messageBox("No Figure Resource File listed!", "Error!", front::kCritical);
    return;
  }
  static const text::LineFilter actors{text::atStart("actor")};
  front::ListBox& list = targetList(session.opening);
  while (!in.atEnd()) {
    count.add(in.skipLines(actors));
    if (in.atEnd()) break;
    const auto line = in.line();
    ++count;
    if (text::begins(line, "actor")) list.add(readEntry(in, count, std::string{line}));
  }
  if (list.count() == 0) {
    session.front.messageBox("No body parts in this file!", "Note!", front::kOk);
  }
}

}  // namespace norvik::figure
