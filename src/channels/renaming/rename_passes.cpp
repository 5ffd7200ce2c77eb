#include "channels/renaming/rename_passes.h"

#include "channels/channel_entry.h"
#include "text/line_search.h"

namespace norvik::channels {

void renameMorph(text::RewritePass& pass, std::string_view oldName, std::string_view newName) {
  const std::string wanted = morphLine(oldName);
  text::copyUpTo(pass, {text::atStart(wanted)},
                 [&](std::string_view line) { return line == wanted; });
  pass.out().line(morphLine(newName));
  pass.out().line(pass.in().line());
  static_cast<void>(pass.in().line());
  pass.out().line("\t\t\tname ", newName);
  pass.copyRest();
  pass.finish();
}

void renamePart(text::RewritePass& pass, const PartNames& names) {
  const text::LineFilter stops{text::anywhere(names.from)};
  while (!pass.in().atEnd()) {
    pass.copyLines(stops);
    if (pass.in().atEnd()) break;
    const auto line = pass.in().line();
    if (text::holds(line, names.from)) {
      pass.out().line(text::before(line, names.from), names.to);
    } else {
      pass.out().line(line);
    }
  }
  pass.finish();
}

}  // namespace norvik::channels
