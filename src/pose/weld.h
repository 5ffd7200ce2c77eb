#pragma once
// menuCombinePZ2: the morph settings of one pose carried over into another.

#include "front/session.h"
#include "pose/form_pz2_combine.h"

namespace norvik::pose {

/// Hangs FormPZ2Combine on menuCombinePZ2, for a destination of the type "pz2". LabelOpenSecond
/// asks for the pose that gives; LabelDone writes "\Combine.pz2" in the program folder, through
/// "\CombineNF.pz2" where a selected morph is missing in the first pose, and asks for the file that
/// it takes the place of. A Cancel there leaves the scratch file, the form and its lists; an error
/// leaves all poses as they were.
void wireWelder(front::Session& session, FormPZ2Combine& form);

}  // namespace norvik::pose
