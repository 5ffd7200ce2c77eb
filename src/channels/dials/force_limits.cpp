#include "channels/dials/force_limits.h"

#include "channels/channel_scan.h"
#include "channels/dials/dial_flag.h"
#include "text/columns.h"
#include "text/field_search.h"

namespace norvik::channels {

namespace {

constexpr FlagTexts kTexts{"Limits were in place, now they are forced.",
                           "Limits were forced, now they are in place."};

/// Reads up to and including the first forceLimits line behind the part's second actor line.
void passToFlag(text::LineReader& in, const std::string& part) {
  const std::string actor = "actor " + part;
  for (int occurrence = 0; occurrence < 2; ++occurrence) {
    text::passField(in, actor, [&](std::string_view field) { return text::begins(field, actor); });
  }
  text::passFieldHolding(in, "forceLimits");
}

void turnLimits(front::Session& session) {
  const std::string part = session.opening.TextForceLimits.text();
  if (part.empty()) {
    session.front.messageBox("Drag the body part to a dial.", "Note!", front::kOk);
    return;
  }
  const front::Answer answer = session.front.messageBox("Force or restore limits for " + part + "?",
                                                        "Confirm", front::kYesNo);
  if (answer == front::Answer::no) return;

  text::LineReader in(session.disk, session.opening.OpenedPath);
  if (!untilEndOfFile([&] { passToFlag(in, part); })) {
    session.front.messageBox("No body part called " + part + "!  Perhaps mispelled?", "Error!",
                             front::kOk);
    return;
  }
  const std::string text = turnFlag(session, flagBehindWhichStands(in), kTexts);
  session.front.messageBox(text, "Note!", front::kOk);
}

}  // namespace

void wireForceLimits(front::Session& session) {
  session.opening.TextForceLimits.key.add([&session](const std::string& key) {
    if (key == "Enter") turnLimits(session);
  });
}

}  // namespace norvik::channels
