#include "front/note_entry.h"

#include "text/line_writer.h"

#include <string>

namespace norvik::front {

void appendNoteEntry(Session& session, std::string_view path, std::string_view about,
                     std::string_view note) {
  text::LineWriter file(session.disk, path, text::LineWriter::Mode::append);
  file.line("**** " + session.front.now(), " ****");
  file.line("** " + std::string{about}, " **");
  file.line(note);
  file.close();
}

}  // namespace norvik::front
