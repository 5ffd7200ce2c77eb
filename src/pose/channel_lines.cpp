#include "pose/channel_lines.h"

#include "text/columns.h"

namespace norvik::pose {

std::string_view targetGeomName(std::string_view line) {
  return text::from(line, 13);
}

std::string_view valueParmName(std::string_view line) {
  return text::from(line, 12);
}

std::optional<ChannelLine> channelLine(std::string_view line) {
  if (text::holds(line, kTargetGeom)) {
    return ChannelLine{ChannelLine::Kind::targetGeom, targetGeomName(line)};
  }
  if (text::holds(line, kValueParm)) {
    return ChannelLine{ChannelLine::Kind::valueParm, valueParmName(line)};
  }
  return std::nullopt;
}

void writeChannel(text::LineWriter& out, std::string_view channel, std::string_view keyLine) {
  out.line(channel);
  out.line("\t\t\t{");
  out.line("\t\t\tkeys");
  out.line("\t\t\t{");
  out.line(keyLine);
  out.line("\t\t\t}");
  out.line("\t\t\t}");
}

}  // namespace norvik::pose
