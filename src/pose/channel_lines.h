#pragma once
// The channels of a pose: what a morph's line is called, and the block that gives it a value.

#include "text/line_writer.h"

#include <optional>
#include <string_view>

namespace norvik::pose {

/// What a line opens, and the text behind its keyword. The blank in front of the name belongs to
/// the name here: the lists show it, and it comes back when a block is written from a list.
struct ChannelLine {
  enum class Kind { targetGeom, valueParm };
  Kind kind;
  std::string_view name;
};

/// The channel that a line opens; nothing for any other line.
std::optional<ChannelLine> channelLine(std::string_view line);

/// The names by themselves, from the column where each keyword ends.
std::string_view targetGeomName(std::string_view line);
std::string_view valueParmName(std::string_view line);

inline constexpr std::string_view kTargetGeom = "targetGeom";
inline constexpr std::string_view kValueParm = "valueParm";

/// Writes a channel with one key: its own line, and six lines of three tabs around `keyLine`.
void writeChannel(text::LineWriter& out, std::string_view channel, std::string_view keyLine);

}  // namespace norvik::pose
