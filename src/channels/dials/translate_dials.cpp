#include "channels/dials/translate_dials.h"

#include "channels/channel_scan.h"
#include "channels/dials/dial_flag.h"
#include "figure/actor_entry.h"
#include "text/field_search.h"

#include <optional>

namespace norvik::channels {

namespace {

enum class Missing { told, silent };

struct Axis {
  std::string_view name;
  std::string_view channel;
  Missing missing;  ///< of Z the operator is not told that there is no dial
};

constexpr FlagTexts kTexts{"The dial was showing, now it is hidden.",
                           "The dial was hidden, now it will show."};

void showLabels(front::Opening& opening, bool visible) {
  opening.LabelX.setVisible(visible);
  opening.LabelY.setVisible(visible);
  opening.LabelZ.setVisible(visible);
}

void startTranslateDials(front::Opening& opening) {
  showLabels(opening, true);
  opening.PictureRenameMorph.hide();
  opening.PictureCopyToDest.hide();
  opening.PictureViewChannels.hide();
}

/// The other two pictures come back with the next view of one part.
void endTranslateDials(front::Opening& opening) {
  showLabels(opening, false);
  opening.PictureViewChannels.show();
}

std::optional<std::uint64_t> findFlag(front::Session& session, const std::string& part,
                                      std::string_view channel) {
  text::LineReader in(session.disk, session.opening.OpenedPath);
  const bool found = untilEndOfFile([&] {
    constexpr std::size_t kNameColumn = 7;
    text::passField(in, part,
                    [&](std::string_view field) { return text::from(field, kNameColumn) == part; });
    static_cast<void>(in.field());
    text::passFieldHolding(in, channel);
    text::passFieldHolding(in, "hidden");
  });
  return found ? std::optional(flagBehindWhichStands(in)) : std::nullopt;
}

void turnDial(front::Session& session, const Axis& axis) {
  front::Opening& opening = session.opening;
  if (opening.ListActors.selection().empty()) {
    session.front.messageBox("Choose a bodypart first.", "Error!", front::kOk);
    return;
  }
  opening.ChosenPart = figure::actorName(opening.ListActors.chosen());
  const std::string& part = opening.ChosenPart;
  const front::Answer answer = session.front.messageBox(
      "Hide or un-hide " + std::string{axis.name} + " dial for " + part + "?", "Confirm!",
      front::kYesNo);
  if (answer == front::Answer::no) return endTranslateDials(opening);

  std::string text = "No translate dials for this part!";
  const auto flag = findFlag(session, part, axis.channel);
  if (!flag && axis.missing == Missing::silent) return;
  if (flag) text = turnFlag(session, *flag, kTexts);
  endTranslateDials(opening);
  session.front.messageBox(text, "Note!", front::kOk);
}

}  // namespace

void wireTranslateDials(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.menuHideDialsTrans.clicked.add([&opening] { startTranslateDials(opening); });
  struct AxisLabel {
    front::Label& label;
    Axis axis;
  };
  const AxisLabel labels[] = {{opening.LabelX, {"X", "translateX", Missing::told}},
                              {opening.LabelY, {"Y", "translateY", Missing::told}},
                              {opening.LabelZ, {"Z", "translateZ", Missing::silent}}};
  for (const AxisLabel& label : labels) {
    label.label.clicked.add([&session, axis = label.axis] { turnDial(session, axis); });
    label.label.key.add([&session, &opening, axis = label.axis](const std::string& key) {
      if (key == "Enter") turnDial(session, axis);
      if (key == "Escape") endTranslateDials(opening);
    });
  }
}

}  // namespace norvik::channels
