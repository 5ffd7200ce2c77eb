#pragma once
// Where in a figure a link belongs: behind the channel, or the part, that FormECM's texts name.

#include "erc/form_ecm.h"
#include "erc/link_kinds.h"
#include "text/line_reader.h"
#include "text/line_writer.h"

#include <optional>
#include <string>

namespace norvik::erc {

/// The line that a link's routine looks for first.
struct Target {
  std::string text;                   ///< what the line holds, or ends in
  int hit = 1;                        ///< which of the lines that hold it
  std::optional<std::string> figure;  ///< the line ends in the text, behind an actor of this figure
};

/// The target that the slaved channel's text says; nothing if it cannot be cut as the kind of link
/// wants it: without the colon or blank that it needs, or with the colon too near its beginning.
std::optional<Target> targetOf(const KindOfLink& kind, const std::string& slaved);

/// Reads through the target, which is the first line that fits: a name also finds a longer one that
/// begins with it. With `out` the lines go there, the target as well. Returns the target's
/// line, and throws FileError inputPastEnd (62) if there is none.
std::string passTarget(const Target& target, text::LineReader& in, text::LineWriter* out = nullptr);

/// What the link's channel holds, which is looked for from the target on: the four letters of a
/// joint or translation. Nothing for a morph, whose entry line is the target itself.
std::optional<std::string> channelOf(const KindOfLink& kind, const FormECM& form);

}  // namespace norvik::erc
