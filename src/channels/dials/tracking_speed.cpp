#include "channels/dials/tracking_speed.h"

#include "channels/dials/line_count_copy.h"
#include "channels/dials/reorder_item.h"
#include "text/line_search.h"
#include "text/number_text.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kScratch = "\\TS.txt";
constexpr std::string_view kSpeed = "trackingScale";

/// Reads on to a line that holds `token`, the one in hand included; counts along.
void findFrom(text::LineReader& in, text::LineCount& count, std::string& line,
              std::string_view token) {
  const text::LineFilter stops{text::anywhere(token)};
  while (!text::holds(line, token)) {
    count.add(in.skipLines(stops));
    line = in.line();
    ++count;
  }
}

void lookUp(front::Session& session) {
  front::Opening& opening = session.opening;
  const ReorderItem item(opening.ListChannelsReorder.chosen());
  text::LineReader in(session.disk, opening.OpenedPath);
  passLineCount(in, item.lineNumber());
  text::LineCount count;
  count.add(static_cast<std::uint64_t>(item.lineNumber()));
  std::string line{in.line()};
  ++count;
  findFrom(in, count, line, item.dial());
  findFrom(in, count, line, kSpeed);
  opening.TargetLine = count.asSingle();
  opening.ListChannelsReorder.hide();
  opening.TextTrackingSpeed.setText(text::after(line, " "));
  opening.TextTrackingSpeed.show();
  opening.setFocus(opening.TextTrackingSpeed);
}

void change(front::Session& session) {
  front::Opening& opening = session.opening;
  const std::string scratch = opening.inProgramFolder(kScratch);
  const std::string speed = opening.TextTrackingSpeed.text();
  session.hourglass(true);
  {
    text::RewritePass pass(session.disk, opening.OpenedPath, scratch);
    copyLineCount(pass, static_cast<double>(opening.TargetLine) - 1);
    const std::string line = text::copyUpTo(pass, {text::anywhere(kSpeed)}, text::holding(kSpeed));
    pass.out().line(text::leftmost(line, text::column(line, " ")), speed);
    pass.copyRest();
    pass.finish();
  }
  opening.TextTrackingSpeed.hide();
  session.disk.replace(scratch, opening.OpenedPath);
  session.hourglass(false);
  session.front.messageBox("Dial tracking speed changed to " + speed, "Note!", front::kOk);
}

}  // namespace

void wireTrackingSpeed(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.menuDialTrackSpeed.clicked.add([&opening] { opening.ListChannelsReorder.show(); });
  opening.ListChannelsReorder.clicked.add([&session] { lookUp(session); });
  opening.ListChannelsReorder.key.add([&session, &opening](const std::string& key) {
    if (key == "Enter") lookUp(session);
    if (key == "Escape") opening.ListChannelsReorder.hide();
  });
  opening.TextTrackingSpeed.key.add([&session, &opening](const std::string& key) {
    if (key == "Enter") change(session);
    if (key == "Escape") opening.TextTrackingSpeed.hide();
  });
}

}  // namespace norvik::channels
