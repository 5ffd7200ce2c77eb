#include "erc/morph_lists.h"

#include "erc/link_kinds.h"
#include "erc/list_fill.h"
#include "figure/figure_number.h"
#include "text/line_reader.h"

namespace norvik::erc {

namespace {

using figure::figureNumber;
using text::anywhere;

constexpr std::string_view kEntry = "targetGeom";
constexpr std::string_view kParent = "parent";
constexpr std::string_view kBody = "actor BODY:";

text::LineReader openFigure(const front::Session& session) {
  return {session.disk, session.opening.LabelFileNameForEditor.caption()};
}

/// Hands the fields that hold `token`, to the end of the file, to `use`, for as long as it returns
/// true. A field in quotes may go over several lines, so lines with a quote are looked at as well.
template <typename Use>
void forEachField(text::LineReader& in, std::string_view token, Use use) {
  const text::LineFilter stops{anywhere(token), anywhere("\"")};
  for (;;) {
    in.passLines(stops);
    if (in.atEnd()) return;
    const auto field = in.field();
    if (text::holds(field, token) && !use(field)) return;
  }
}

/// A field of a morph's entry as an item, if it is of the form's figure: a name with a number of
/// its own must have the right one.
void addMorph(const FormECM& form, ListFill& fill, std::string_view field) {
  const bool numbered = text::holds(field, ":");
  if (numbered && !figure::sameFigure(figureNumber(field), form.FigureNumber)) return;
  fill.add(std::string{figure::morphName(field)} + ":" + form.FigureNumber);
}

void addMorphs(FormECM& form, ListFill& fill, text::LineReader& in) {
  forEachField(in, kEntry, [&](std::string_view field) {
    addMorph(form, fill, field);
    return !fill.abandoned();
  });
}

void passFirstParent(text::LineReader& in) {
  forEachField(in, kParent, [](std::string_view field) { return !text::begins(field, kParent); });
}

/// Counts the figures' BODY lines and keeps the first one's number and the last one's.
int countBodies(const front::Session& session, FormECM& form) {
  int bodies = 0;
  auto in = openFigure(session);
  forEachField(in, kBody, [&](std::string_view field) {
    form.FigureNumber = figureNumber(field);
    if (++bodies == 1) form.FirstFigureNumber = form.FigureNumber;
    return true;
  });
  return bodies;
}

}  // namespace

void listMorphsOfLastFigure(front::Session& session, FormECM& form) {
  ListFill fill(session, form, form.ListControlledMorph);
  text::ignoringErrors([&] {
    int bodies = countBodies(session, form);
    auto in = openFigure(session);
    if (bodies > 0) forEachField(in, kBody, [&bodies](std::string_view) { return --bodies > 0; });
    addMorphs(form, fill, in);
  });
}

void listMorphs(front::Session& session, FormECM& form) {
  ListFill fill(session, form, form.ListControlledMorph);
  text::ignoringErrors([&] {
    auto in = openFigure(session);
    passFirstParent(in);
    addMorphs(form, fill, in);
  });
}

void listBareMorphs(front::Session& session, FormECM& form) {
  ListFill fill(session, form, form.ListControlledMorph);
  text::ignoringErrors([&] {
    auto in = openFigure(session);
    passFirstParent(in);
    forEachField(in, kEntry, [&](std::string_view field) {
      fill.add(std::string{figure::morphName(field)});
      return !fill.abandoned();
    });
  });
}

void refillMorphs(front::Session& session, FormECM& form) {
  form.ListControlledMorph.clear();
  {
    ListFill fill(session, form, form.ListControlledMorph);
    const bool firstFigureOnly = isKind(form, Kind::CM);
    auto in = openFigure(session);
    const text::LineFilter stops{anywhere(kParent), anywhere(kEntry), anywhere("\"")};
    std::string number;
    while (!fill.abandoned()) {
      in.passLines(stops);
      if (in.atEnd()) break;
      const auto field = in.field();
      if (text::holds(field, kParent) && text::holds(field, ":")) number = figureNumber(field);
      if (!text::holds(field, kEntry)) continue;
      if (firstFigureOnly && !figure::sameFigure(number, form.FirstFigureNumber)) continue;
      fill.add(std::string{figure::morphName(field)} + " :" + number);
    }
  }
  if (form.ListControlledMorph.count() == 0) {
    session.front.messageBox("There are no morphs in the other figures for CM to work with!",
                             "Note!", front::kOk);
  }
}

}  // namespace norvik::erc
