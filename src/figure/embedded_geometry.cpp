#include "figure/embedded_geometry.h"

#include "text/columns.h"

namespace norvik::figure {

void copyEmbeddedGeometry(text::LineReader& in, text::LineWriter& out) {
  std::string_view field;
  do {
    field = in.field();
  } while (!text::begins(field, "v "));
  while (!text::begins(field, "}")) {
    out.line(field);
    field = in.field();
  }
}

}  // namespace norvik::figure
