#pragma once
// Ruled paper as a background picture. MenuScale shows the form; Enter in the first box goes to the
// second, Enter in the second draws the sheet, a line each 10 pixels, and saves it as a BMP in the
// current folder, named by its size ("640X480.bmp").

#include "front/session.h"
#include "tools/form_scale.h"

namespace norvik::tools {

void wireGraphPaper(front::Session& session, FormScale& form);

}  // namespace norvik::tools
