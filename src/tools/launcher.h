#pragma once
// The launcher: MenuLauncher shows it, and a file that is dropped on its picture is opened in the
// main form as one that is given at the start (see ComStart). Of several files the first counts.

#include "front/session.h"
#include "tools/form_launch.h"

namespace norvik::tools {

void wireLauncher(front::Session& session, FormLaunch& form);

}  // namespace norvik::tools
