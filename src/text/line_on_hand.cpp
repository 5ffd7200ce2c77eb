#include "text/line_on_hand.h"

#include "text/classic_errors.h"
#include "text/columns.h"

#include <utility>
#include <vector>

namespace norvik::text {

namespace {

/// The last line of some, with its ending.
std::string_view lastLine(std::string_view lines) {
  std::size_t end = lines.size();
  while (end > 0 && isLineEnd(lines[end - 1])) --end;
  // Behind the last text only the last ending belongs to the last line.
  const std::string_view endings = lines.substr(end);
  if (endings.size() > 1 && endings != "\r\n") {
    return lines.substr(lines.size() - (endings.ends_with("\r\n") ? 2 : 1));
  }
  const std::size_t previous = lines.substr(0, end).find_last_of("\r\n");
  return previous == std::string_view::npos ? lines : lines.substr(previous + 1);
}

/// The last field of a line without quotes. A comma ends a field; one in front of the line's ending
/// has an empty field behind it, one at the end of the file has none.
std::string_view lastField(std::string_view line) {
  const auto ending = line.find_first_of("\r\n");
  std::string_view text = line.substr(0, ending);
  if (ending == std::string_view::npos && text.ends_with(',')) text.remove_suffix(1);
  const auto comma = text.find_last_of(',');
  if (comma != std::string_view::npos) text.remove_prefix(comma + 1);
  const auto first = text.find_first_not_of(" \t");
  return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

}  // namespace

LineOnHand::LineOnHand(const Disk& disk, std::string_view path, Read read)
    : disk_(disk), path_(path), kind_(read), in_(disk, path) {}

void LineOnHand::reopen() {
  in_ = LineReader(disk_, path_);
}

void LineOnHand::reopenAt(std::uint64_t position) {
  auto file = disk_.openForReading(path_);
  raise(file->seek(position), path_, FileAct::reading);
  in_ = LineReader(std::move(file));
}

const std::string& LineOnHand::read() {
  line_ = kind_ == Read::lines ? in_.line() : in_.field();
  return line_;
}

std::optional<LineFilter> LineOnHand::filterFor(Texts texts) const {
  if (texts.size() == 0) return std::nullopt;
  std::vector<LineFilter::Token> tokens;
  for (const std::string_view text : texts) tokens.push_back(anywhere(text));
  // A field in quotes may run over line ends: it is read, not passed over.
  if (kind_ == Read::fields) tokens.push_back(anywhere("\""));
  return LineFilter(tokens);
}

void LineOnHand::copyRest(LineWriter& out) {
  pass(LineFilter{}, &out);
}

void LineOnHand::pass(const LineFilter& filter, LineWriter* out) {
  in_.handOnLines(filter, [this, out](std::string_view lines) {
    if (out != nullptr) out->lines(lines);
    const std::string_view last = lastLine(lines);
    line_ = kind_ == Read::lines ? last.substr(0, last.find_first_of("\r\n")) : lastField(last);
  });
}

}  // namespace norvik::text
