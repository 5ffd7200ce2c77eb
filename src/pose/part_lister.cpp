#include "pose/part_lister.h"

#include "pose/field_scan.h"
#include "text/columns.h"

namespace norvik::pose {

namespace {

using text::anywhere;

void listPart(FormPZ2& form, text::LineReader& in, std::string_view actorLine) {
  const std::string name{text::from(actorLine, 7)};
  static_cast<void>(in.field());
  const auto third = in.field();
  if (third.empty() || text::holds(third, "Offset")) return;
  if (text::holds(name, ":")) form.ListActorsPZ2.add(text::before(name, ":"));
}

}  // namespace

bool ListTheActorsPZ2(front::Session& session, FormPZ2& form) {
  static const text::LineFilter stops{anywhere("actor"), anywhere("\"")};
  const int showing = form.showings;
  form.ListActorsPZ2.clear();
  text::LineReader in(session.disk, form.path);
  while (const auto field = nextField(in, stops)) {
    if (!text::begins(*field, "actor")) continue;
    if (form.matMode()) {
      form.ListActorsPZ2.add(*field);
      continue;
    }
    listPart(form, in, *field);
    session.front.pumpEvents();
    if (form.showings != showing) return false;
  }
  return true;
}

}  // namespace norvik::pose
