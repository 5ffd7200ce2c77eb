#include "erc/figure_lists.h"

#include "channels/channel_entry.h"
#include "figure/actor_entry.h"
#include "figure/figure_number.h"
#include "text/line_search.h"

#include <array>
#include <unordered_set>

namespace norvik::erc {

namespace {

using text::anywhere;

text::LineReader openFigure(const front::Session& session) {
  return {session.disk, session.opening.LabelFileNameForEditor.caption()};
}

/// Passes the next field that is "figure". False at the end of the file.
bool passFigure(text::LineReader& in) {
  static const text::LineFilter stops{anywhere("figure"), anywhere("\"")};
  for (;;) {
    in.passLines(stops);
    if (in.atEnd()) return false;
    if (in.field() == "figure") return true;
  }
}

/// The line with the name, among the three fields behind "figure": the first that says so, or the
/// last of them.
std::string nameLine(text::LineReader& in) {
  std::array<std::string, 3> fields{};
  for (std::string& field : fields) field = in.field();
  for (const std::string& field : fields) {
    if (text::holds(field, "name")) return field;
  }
  return fields.back();
}

void passReferences(text::LineReader& in) {
  constexpr std::string_view kReference = "figureResFile";
  for (int i = 0; i < 2; ++i) {
    text::passThrough(in, {anywhere(kReference)}, text::holding(kReference));
  }
}

}  // namespace

std::string firstFigureName(const front::Session& session) {
  auto in = openFigure(session);
  if (!passFigure(in)) static_cast<void>(in.field());  // there is none: the end of the file tells
  return std::string{channels::dialName(nameLine(in))};
}

void listFigures(front::Session& session, FormECM& form) {
  constexpr std::size_t kNameColumn = 7;
  form.ListConFigECM.clear();
  form.ListConFigECM.show();
  form.LabelConFigECM.show();
  session.hourglass(true);
  auto in = openFigure(session);
  while (passFigure(in)) form.ListConFigECM.add(text::from(nameLine(in), kNameColumn));
  session.hourglass(false);
}

void listActors(front::Session& session, FormECM& form, bool ofOneFigure) {
  static const text::LineFilter stops{text::atStart("actor")};
  front::ListBox& list = form.ListActorsECM;
  list.clear();
  list.show();
  session.hourglass(true);
  auto in = openFigure(session);
  passReferences(in);
  std::unordered_set<std::string> listed;
  for (;;) {
    in.passLines(stops);
    if (in.atEnd()) break;
    const auto line = in.line();
    if (!text::begins(line, "actor")) continue;
    if (ofOneFigure && !figure::sameFigure(figure::figureNumber(line), form.FigureNumber)) continue;
    std::string entry{figure::actorText(line)};
    static_cast<void>(in.line());
    if (in.line().empty()) entry = figure::kStorageEntry;
    entry = figure::indentedEntry(entry);
    if (listed.insert(entry).second) list.add(entry);
  }
  session.hourglass(false);
  if (list.count() == 0) {
    session.front.messageBox("No body parts in this file!", "Note!", front::kOk);
  }
  form.setFocus(list);
}

}  // namespace norvik::erc
