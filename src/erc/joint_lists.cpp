#include "erc/joint_lists.h"

#include "erc/link_kinds.h"
#include "erc/list_fill.h"
#include "figure/figure_number.h"
#include "text/field_search.h"

#include <array>
#include <optional>

namespace norvik::erc {

namespace {

using text::anywhere;

/// What tells one sort of channel from the other: the word that its lines begin with, behind which
/// the axis stands, and what its items say behind the axis.
struct Sort {
  std::string_view word;
  std::string_view item;
};
constexpr Sort kRotation{"rotate", "rot "};
constexpr Sort kTranslation{"translate", "tran "};

/// The one read over the file's second section.
class AxisScan {
 public:
  AxisScan(front::Session& session, FormECM& form, const Sort& sort,
           std::optional<std::string> figure)
      : form_(form),
        sort_(sort),
        figure_(std::move(figure)),
        taken_(!figure_),
        fill_(session, form, form.ListControlledMorph),
        in_(session.disk, session.opening.LabelFileNameForEditor.caption()) {}

  void run() {
    passReferences();
    const text::LineFilter stops{anywhere("actor"), anywhere(sort_.word), anywhere("\"")};
    while (!fill_.abandoned()) {
      in_.passLines(stops);
      if (in_.atEnd()) return;
      const auto field = in_.field();
      if (text::begins(field, "actor")) {
        enterActor(field);
      } else if (taken_ && text::begins(field, sort_.word)) {
        listAxis(field);
      }
    }
  }

 private:
  void passReferences() {
    constexpr std::string_view kReference = "figureResFile";
    text::passFieldHolding(in_, kReference);
    text::passFieldHolding(in_, kReference);
  }

  void enterActor(std::string_view field) {
    actor_ = figure::nameOnActorLine(field);
    taken_ = !figure_ || figure::sameFigure(figure::figureNumber(field), *figure_);
    actor_ += ' ';
  }

  void listAxis(std::string_view field) {
    static constexpr std::array kAxes{'X', 'Y', 'Z'};
    static constexpr std::array kLetters{"x", "y", "z"};
    for (std::size_t i = 0; i < kAxes.size(); ++i) {
      if (!text::holds(field, std::string{sort_.word} + kAxes.at(i))) continue;
      return addChannel(kLetters.at(i) + std::string{sort_.item} + actor_);
    }
  }

  /// The limits are taken each time, also those of a channel that is listed already.
  void addChannel(const std::string& item) {
    static const text::LineFilter stops{anywhere("min")};
    static_cast<void>(in_.field());  // the brace
    static_cast<void>(in_.field());  // the name
    fill_.add(item);
    std::string_view line;
    do {
      in_.passLines(stops);
      line = in_.line();
    } while (!text::holds(line, "min"));
    form_.ListMinMax.add(item + "*" + std::string{line});
    form_.ListMinMax.add(item + "*" + std::string{in_.line()});
  }

  FormECM& form_;
  const Sort& sort_;
  std::optional<std::string> figure_;  ///< the only one whose actors are taken
  bool taken_;                         ///< whether the current actor is
  std::string actor_ = " ";            ///< its name and a blank
  ListFill fill_;
  text::LineReader in_;
};

void prepare(FormECM& form) {
  form.LabelPBM1.show();
  if (!form.LabelPBM.visible()) form.SlavedChannel = figure::figureNumber(form.TextPBM1.text());
  if (form.LabelCM.visible()) form.SlavedChannel = form.FigureNumber;
  form.ListConFigECM.hide();
  form.ListActorsECM.hide();
  form.ListControlledMorph.show();
}

}  // namespace

void AddJoints(front::Session& session, FormECM& form) {
  prepare(form);
  const bool limited = form.LabelCM.visible() || form.LabelJCM.visible();
  std::optional<std::string> figure;
  if (limited) figure = form.SlavedChannel;
  AxisScan(session, form, kRotation, std::move(figure)).run();
}

void AddTranslations(front::Session& session, FormECM& form) {
  prepare(form);
  const bool limited =
      form.TextPBM3.text().empty() && !form.LabelJCT.visible() && !form.LabelMCT.visible();
  std::optional<std::string> figure;
  if (limited) figure = form.SlavedChannel;
  AxisScan(session, form, kTranslation, std::move(figure)).run();
}

}  // namespace norvik::erc
