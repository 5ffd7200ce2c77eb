#include "pose/weld_lists.h"

#include "pose/channel_lines.h"
#include "text/columns.h"
#include "text/line_reader.h"

#include <functional>
#include <string>

namespace norvik::pose {

namespace {

struct Setting {
  std::string actor;  ///< without the word "actor"
  ChannelLine::Kind kind;
  std::string name;
  std::string keyLine;
};

/// The key line of the channel whose first line was just read: the fourth behind it, or the third
/// in a channel without "keys".
std::string readKeyLine(text::LineReader& in) {
  static_cast<void>(in.line());
  if (text::holds(in.line(), "keys")) static_cast<void>(in.line());
  return std::string{in.line()};
}

void readSettings(front::Session& session, const std::string& path,
                  const std::function<void(const Setting&)>& add) {
  static const text::LineFilter stops{text::atStart("actor"), text::anywhere(kTargetGeom),
                                      text::anywhere(kValueParm)};
  text::LineReader in(session.disk, path);
  std::string actor;
  while (!in.atEnd()) {
    in.passLines(stops);
    if (in.atEnd()) return;
    const std::string line{in.line()};
    if (text::begins(line, "actor")) actor = text::from(line, 7);
    if (const auto channel = channelLine(line)) {
      add({actor, channel->kind, std::string{channel->name}, readKeyLine(in)});
    }
  }
}

}  // namespace

void listFirstFile(front::Session& session, FormPZ2Combine& form) {
  readSettings(session, form.LabelFileFirst.caption(), [&form](const Setting& setting) {
    form.ListFile1.add(setting.name);
    form.ListKeyLinesFirst.add(setting.keyLine);
  });
}

void listSecondFile(front::Session& session, FormPZ2Combine& form) {
  readSettings(session, form.LabelFileSecond.caption(), [&form](const Setting& setting) {
    form.ListTGVP.add(setting.kind == ChannelLine::Kind::targetGeom ? "TG" : "VP");
    form.ListActors2.add(setting.actor);
    form.ListFile2.add(setting.name);
    form.ListKeyLines.add(setting.keyLine);
  });
}

}  // namespace norvik::pose
