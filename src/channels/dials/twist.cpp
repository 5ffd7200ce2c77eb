#include "channels/dials/twist.h"

#include "text/columns.h"
#include "text/line_reader.h"
#include "text/patched_file.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <vector>

namespace norvik::channels {

namespace {

using Channels = std::array<std::string_view, 6>;

constexpr Channels kThigh{"twistY lThigh_twisty", "jointZ lThigh_jointz", "jointX lThigh_jointx",
                          "twistY rThigh_twisty", "jointZ rThigh_jointz", "jointX rThigh_jointx"};
constexpr Channels kShoulder{"twistY lShldr_twisty", "jointZ lShldr_jointz",
                             "jointX lShldr_jointx", "twistY rShldr_twisty",
                             "jointZ rShldr_jointz", "jointX rShldr_jointx"};

constexpr std::string_view kHip = "Hip (as alternate Thigh name)";
/// What the removal looks for when it sets its limit; no item says so, so the hip has none.
constexpr std::string_view kHipOfRemoval = "Hip (alternate Thigh name)";

constexpr char kMark = '*';
constexpr char kUnmarked = '\t';

/// The status text by the bytes that were read: it goes at 500, comes at 1000, and so on.
std::string_view workingText(std::uint64_t bytes) {
  constexpr std::uint64_t kGoes = 500;
  constexpr std::uint64_t kComes = 1000;
  const bool shows = bytes >= kComes && bytes % kComes < kGoes;
  return shows ? "Working...." : "";
}

const Channels& channelsOf(std::string_view part) {
  return part == "Shoulder" ? kShoulder : kThigh;
}

std::size_t mostLines(std::string_view part, std::string_view hip) {
  constexpr std::size_t kThighLines = 6;
  constexpr std::size_t kShoulderLines = 2;
  if (part == "Thigh" || part == hip) return kThighLines;
  if (part == "Shoulder") return kShoulderLines;
  return std::numeric_limits<std::size_t>::max();
}

/// Where the lines of the part's channels begin that begin with `first`, up to a number of them.
std::vector<std::uint64_t> findLines(front::Session& session, const Channels& channels, char first,
                                     std::size_t most) {
  const text::LineFilter stops{text::anywhere(channels[0]), text::anywhere(channels[1]),
                               text::anywhere(channels[2]), text::anywhere(channels[3]),
                               text::anywhere(channels[4]), text::anywhere(channels[5])};
  std::vector<std::uint64_t> places;
  text::LineReader in(session.disk, session.opening.OpenedPath);
  for (in.passLines(stops); !in.atEnd() && places.size() < most; in.passLines(stops)) {
    const std::uint64_t place = in.position();
    session.front.showPassText(workingText(place));
    const auto line = in.line();
    const bool ofPart = std::any_of(channels.begin(), channels.end(),
                                    [line](auto channel) { return text::holds(line, channel); });
    if (ofPart && line.front() == first) places.push_back(place);
  }
  return places;
}

void deleteOldScratchFiles(front::Session& session) {
  const front::Opening& opening = session.opening;
  text::ignoringErrors([&] {
    for (const std::string& name : session.disk.matching(opening.inProgramFolder("\\read*.txt"))) {
      text::ignoringErrors([&] { session.disk.remove(opening.inProgramFolder("\\" + name)); });
    }
  });
}

/// Turns the first byte of the part's lines from one into the other, and returns how many lines
/// that were; nothing if the file could not be read or written.
std::optional<std::size_t> turnLines(front::Session& session, const std::string& part, char from,
                                     char to, std::size_t most) {
  deleteOldScratchFiles(session);
  session.hourglass(true);
  std::size_t count = 0;
  const bool whole = text::ignoringErrors([&] {
    const auto places = findLines(session, channelsOf(part), from, most);
    count = places.size();
    if (places.empty()) return;
    text::PatchedFile file(session.disk, session.opening.OpenedPath);
    for (const std::uint64_t place : places) file.put(place, to);
  });
  session.front.showPassText({});
  session.hourglass(false);
  if (whole) return count;
  session.front.messageBox("Oddball file!  Can't process!", "Error!", front::kOk);
  return std::nullopt;
}

void tell(front::Session& session, const std::string& text) {
  session.front.messageBox(text, "Note!", front::kOk);
}

void removeTwist(front::Session& session) {
  const std::string part{session.opening.ListTwistRemove.chosen()};
  if (part.empty()) return;
  const auto count = turnLines(session, part, kUnmarked, kMark, mostLines(part, kHipOfRemoval));
  if (!count) return;
  if (*count == 0) return tell(session, "No " + part + " with twist parameters!");
  tell(session, part + " Edited!\r\n" + std::to_string(*count) + " lines were commented out.");
}

void restoreTwist(front::Session& session) {
  const std::string part{session.opening.ListTwistRestore.chosen()};
  if (part.empty()) return;
  const auto count = turnLines(session, part, kMark, kUnmarked, mostLines(part, kHip));
  if (!count) return;
  if (*count == 0) {
    return tell(session, "No " + part + " twist parameters were commented out!");
  }
  tell(session, part + " Restored!\r\n" + std::to_string(*count) + " lines were restored.");
}

}  // namespace

void wireTwist(front::Session& session) {
  session.opening.ListTwistRemove.clicked.add([&session] { removeTwist(session); });
  session.opening.ListTwistRestore.clicked.add([&session] { restoreTwist(session); });
}

}  // namespace norvik::channels
