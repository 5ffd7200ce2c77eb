#include "erc/link_preview.h"

#include "erc/joint_ratio.h"
#include "erc/link_block.h"
#include "erc/link_place.h"
#include "text/columns.h"
#include "text/line_scan.h"

#include <algorithm>
#include <vector>

namespace norvik::erc {

namespace {

using text::anywhere;
using text::atStart;

bool beginsEntry(std::string_view line) {
  return line.size() > 2 && text::begins(line, "\t\t") && line[2] >= 'a' && line[2] <= 'z';
}

/// Reads through the line that holds `token` and keeps the last entry line that was passed.
void passThrough(text::LineReader& in, std::string_view token, std::string& entry) {
  static constexpr std::string_view kTabs = "\t\t";
  const text::LineFilter stops{anywhere(token),          atStart("\t\ttargetGeom"),
                               atStart("\t\tvalueParm"), atStart("\t\trotate"),
                               atStart("\t\ttranslate"), atStart("\t\tscale"),
                               atStart("\t\ttwist"),     atStart("\t\tjoint"),
                               atStart("\t\tgeomChan"),  atStart("\t\tpropagating"),
                               atStart("\t\tsmooth")};
  for (;;) {
    in.passLines(stops);
    const auto line = in.line();
    if (beginsEntry(line)) entry = line.substr(kTabs.size());
    if (text::holds(line, token)) return;
  }
}

/// The lines in the first bytes of a file.
std::uint64_t linesIn(const text::Disk& disk, const std::string& path, std::uint64_t bytes) {
  constexpr std::size_t kBlock = std::size_t{1} << 20U;
  std::vector<char> block(kBlock);
  const auto file = disk.openForReading(path);
  std::uint64_t lines = 0;
  while (bytes > 0) {
    std::size_t got = 0;
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(bytes, kBlock));
    if (file->read(block.data(), wanted, got) != 0 || got == 0) break;
    lines += static_cast<std::uint64_t>(std::count(block.data(), block.data() + got, '\n'));
    bytes -= got;
  }
  return lines;
}

/// The click on a group takes the channel from the first text: always, where it writes the link.
bool groupIsToCome(const KindOfLink& kind, const FormECM& form) {
  return !form.TextPBM4.visible() || (kind.kind == Kind::JCJ && !form.LabelDone.visible());
}

std::optional<std::string> channelToCome(const KindOfLink& kind, const FormECM& form) {
  auto channel = channelOf(kind, form);
  constexpr std::size_t kChannelLength = 4;
  if (channel && groupIsToCome(kind, form)) {
    channel = text::leftmost(form.TextPBM1.text(), kChannelLength);
  }
  return channel;
}

std::optional<LinkPlace> findPlace(const front::Session& session, const FormECM& form,
                                   const KindOfLink& kind) {
  const auto target = targetOf(kind, form.TextPBM1.text());
  if (!target) return std::nullopt;
  const std::string& figure = session.opening.LabelFileNameForEditor.caption();
  LinkPlace place;
  const bool found = text::ignoringErrors([&] {
    text::LineReader in(session.disk, figure);
    const std::string line{passTarget(*target, in)};
    if (beginsEntry(line)) place.channel = line.substr(2);
    if (const auto channel = channelToCome(kind, form)) passThrough(in, *channel, place.channel);
    passThrough(in, "interpStyleLocked", place.channel);
    place.line = linesIn(session.disk, figure, in.position());
    place.linked = text::holds(in.line(), kLinkStart);
  });
  if (!found) return std::nullopt;
  return place;
}

}  // namespace

std::optional<LinkPreview> previewLink(const front::Session& session, const FormECM& form) {
  const KindOfLink* kind = kindOnView(form);
  if (kind == nullptr) return std::nullopt;
  LinkPreview preview{linkBlock(form, *kind), findPlace(session, form, *kind)};
  if (kind->kind == Kind::JCJ && groupIsToCome(*kind, form)) {
    text::ignoringErrors([&] {
      preview.lines.back() =
          ratioLine(ratioOfJoints(form.ListMinMax, form.TextPBM3.text(), form.TextPBM1.text()));
    });
  }
  return preview;
}

}  // namespace norvik::erc
