#include "pose/mat_lister.h"

#include "figure/material_block.h"
#include "pose/field_scan.h"
#include "text/columns.h"

#include <functional>
#include <set>
#include <string>

namespace norvik::pose {

namespace {

using text::anywhere;

constexpr std::string_view kFigure = "figure";
constexpr std::string_view kProp = "prop";

/// A walk over a file's materials, by fields.
class MaterialWalk {
 public:
  MaterialWalk(front::Session& session, FormPZ2& form)
      : form_(form), in_(session.disk, form.path) {}

  /// Through the first field that holds the geometry's reference, or is the figure's own line.
  /// Whether it is the latter.
  bool passReference() {
    static const text::LineFilter stops{anywhere(kFigure), anywhere("\"")};
    for (;;) {
      const auto field = next(stops);
      if (field == kFigure) return true;
      if (text::holds(field, "figureResFile")) return false;
    }
  }

  /// The same to the first `prop`, which hair keeps; the figure's own line is kept in its place.
  bool passHair() {
    static const text::LineFilter stops{anywhere(kFigure), anywhere(kProp), anywhere("\"")};
    for (;;) {
      const auto field = next(stops);
      if (field != kFigure && !text::begins(field, kProp)) continue;
      form_.propLine = field;
      return field == kFigure;
    }
  }

  /// Through the first field that begins with "prop".
  void passProp() {
    static const text::LineFilter stops{anywhere(kProp), anywhere("\"")};
    while (!text::begins(next(stops), kProp)) {
    }
  }

  /// Remembers the names of props up to the figure's line. False if there is no such line.
  bool rememberProps() {
    static const text::LineFilter stops{anywhere(kFigure), anywhere(kProp), anywhere("\"")};
    while (const auto field = nextField(in_, stops)) {
      if (*field == kFigure) return true;
      if (text::begins(*field, kProp)) seen_.emplace(text::from(*field, 6));
    }
    return false;
  }

  void list() {
    static const text::LineFilter stops{anywhere(figure::kMaterial), anywhere("\"")};
    while (const auto field = nextField(in_, stops)) {
      if (!figure::isMaterialField(*field)) continue;
      const auto name = figure::materialName(*field);
      if (name == figure::kPreview || !seen_.emplace(name).second) continue;
      form_.ListMaterialsMAT.add(name);
      // The colour is the second line of the block, whatever stands there.
      static_cast<void>(in_.field());
      form_.ListMATColors.add(text::from(in_.field(), 9));
    }
  }

 private:
  /// The next field that may be of use; throws at the end of the file.
  std::string_view next(const text::LineFilter& stops) {
    in_.passLines(stops);
    return in_.field();
  }

  FormPZ2& form_;
  text::LineReader in_;
  std::set<std::string, std::less<>> seen_;  ///< names of props, then of materials
};

/// Hair as a rule has no figure's line: its materials then begin behind its first `prop` line, and
/// may bear the name of a prop.
void listHair(front::Session& session, FormPZ2& form) {
  MaterialWalk walk(session, form);
  if (walk.passHair() || walk.rememberProps()) return walk.list();
  MaterialWalk again(session, form);
  again.passHair();
  again.list();
}

}  // namespace

void ListMaterialsMATPZ2(front::Session& session, FormPZ2& form) {
  if (text::extension(form.path) == "hr2") return listHair(session, form);
  MaterialWalk walk(session, form);
  if (walk.passReference() || walk.rememberProps()) walk.list();
}

void ListMaterialsPP2MATPZ2(front::Session& session, FormPZ2& form) {
  MaterialWalk walk(session, form);
  walk.passProp();
  walk.list();
}

}  // namespace norvik::pose
