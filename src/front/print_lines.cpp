#include "front/print_lines.h"

namespace norvik::front {

bool printLines(FrontEnd& front, const std::vector<std::string>& lines, std::size_t headingLines) {
  if (!front.printerDialog()) return false;
  front.print("Courier", lines, headingLines);
  return true;
}

}  // namespace norvik::front
