#pragma once
// The figure's texture map on view. A click on PictureMapViewer shows the map of TextMainTex, or
// the one that is selected in ListAllTexMaps, in FormViewer; while that is open it shows the new
// map. Nothing is left on the disk.

#include "front/session.h"
#include "tools/form_viewer.h"

namespace norvik::tools {

void wireMapViewer(front::Session& session, FormViewer& form);

}  // namespace norvik::tools
