#include "erc/link_opening.h"

#include "erc/joint_lists.h"
#include "erc/link_kinds.h"
#include "erc/morph_lists.h"
#include "figure/figure_number.h"
#include "text/field_search.h"

namespace norvik::erc {

namespace {

constexpr std::string_view kPlainRatio = "1.000000";

/// The number behind the figure's reference, as a rule that of "actor BODY:1".
void readFigureNumber(const front::Session& session, FormECM& form) {
  constexpr int kFieldsBehind = 3;
  text::LineReader in(session.disk, session.opening.LabelFileNameForEditor.caption());
  text::passField(in, "figure", [](std::string_view field) {
    return text::begins(field, "figure") && text::holds(field, "Res");
  });
  for (int i = 0; i < kFieldsBehind; ++i) {
    const auto field = in.field();
    if (text::holds(field, ":")) form.FigureNumber = figure::figureNumber(field);
  }
}

/// The channels that the first choice is made from. An error ends the list without a word.
void listFirstChannels(front::Session& session, FormECM& form, Kind kind) {
  switch (kind) {
    case Kind::CM:
      listMorphsOfLastFigure(session, form);
      text::ignoringErrors([&] { AddJoints(session, form); });
      break;
    case Kind::JCM:
    case Kind::TCM:
    case Kind::MCM:
      listMorphs(session, form);
      break;
    case Kind::PBM:
      listBareMorphs(session, form);
      break;
    case Kind::JCJ:
    case Kind::MCJ:
    case Kind::TCJ:
      text::ignoringErrors([&] { AddJoints(session, form); });
      break;
    case Kind::JCT:
    case Kind::MCT:
      text::ignoringErrors([&] { AddTranslations(session, form); });
      break;
  }
}

}  // namespace

void openLinkForm(front::Session& session, const DialogERC& dialog, FormECM& form) {
  readFigureNumber(session, form);
  form.TextPBMRatio.setText(kPlainRatio);
  const KindOfLink* kind = chosenKind(dialog);
  if (kind == nullptr) return;
  (form.*kind->label).show();
  form.TextPBMRatio.setText(kind->startRatio);
  form.ListControlledMorph.clear();
  form.PickCount = 0;
  listFirstChannels(session, form, kind->kind);
}

}  // namespace norvik::erc
