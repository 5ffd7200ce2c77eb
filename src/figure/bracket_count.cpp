#include "figure/bracket_count.h"

#include "text/columns.h"

namespace norvik::figure {

namespace {

using text::anywhere;

constexpr std::string_view kActor = "actor";

void count(std::string_view field, long long& left, long long& right) {
  if (field.starts_with('{')) ++left;
  if (field.starts_with('}')) ++right;
}

}  // namespace

BracketCount countBrackets(text::LineReader& in) {
  static const text::LineFilter brackets{anywhere("{"), anywhere("}"), anywhere(kActor),
                                         anywhere("\"")};
  BracketCount total;
  do {
    in.passLines({anywhere("figureResFile"), anywhere("\"")});
  } while (!text::holds(in.field(), "figureResFile"));
  total.left = 1;

  std::string field;
  long long actors = 0;
  bool carried = false;
  while (!in.atEnd()) {
    if (!carried) {
      // In front of the first actor only brackets matter; behind one every field may be a label.
      if (actors == 0) in.passLines(brackets);
      if (in.atEnd()) break;
      field = in.field();
    }
    if (text::begins(field, kActor)) ++actors;
    if (actors > 0) {
      carried = false;
      total.actor = text::before(field, ":");
      long long left = 0;
      long long right = 0;
      field = in.field();
      while (!text::begins(field, kActor) && !in.atEnd()) {
        count(field, left, right);
        count(field, total.left, total.right);
        in.passLines(brackets);
        if (in.atEnd()) {
          field.clear();
          break;
        }
        field = in.field();
        if (field == "actor UNIVERSE" && actors >= 2) carried = true;
        if (text::begins(field, kActor)) {
          carried = true;
          break;
        }
      }
      if (left == right + 1) total.missing = "right";
      if (right == left + 1) total.missing = "left";
      if (!total.missing.empty()) return total;
    }
    count(field, total.left, total.right);
  }
  return total;
}

}  // namespace norvik::figure
