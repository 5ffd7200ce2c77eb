#pragma once
// LabelView: the read of the mesh into the store, which also draws it.

#include "workshop/workshop.h"

namespace norvik::obj {

/// Reads the mesh of LabelOBJFileName, or "\Param.obj" when ReadParamObj is set, into
/// "\FArray.txt", "\VTArray.txt", "\VArray.txt", the vertex table and the lists of the form, while
/// the flat views show it growing. A mesh less than 0.1 high is written to "\Param.obj" with its
/// height raised and read from there; one without faces is shown as dots.
/// Line endings are checked first, unless a tool has set ReadAgain. An index that no vertex has
/// ends the read with FileError 9, any other error of the file with its own number; the store then
/// holds what was read so far.
void View(Workshop& workshop);

/// The same lines again, for drawing alone: no file is written and no name is added.
void RefreshOBJ(Workshop& workshop);

/// Hangs the read on LabelView.
void wireView(Workshop& workshop);

}  // namespace norvik::obj
