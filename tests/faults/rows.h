#pragma once
// The tools that replace, make or delete files of the operator's: the rows of one table.

#include "support/tool_faults.h"

#include <string>
#include <vector>

namespace norvik::tests {

using FaultRows = std::vector<FaultRow>;

FaultRows figureRows();
FaultRows copyRows();
FaultRows surgeryRows();
FaultRows dialRows();
FaultRows linkRows();
FaultRows phiRows();
FaultRows sceneRows();
FaultRows materialRows();
FaultRows poseRows();
FaultRows editorRows();
FaultRows meshToolRows();
FaultRows meshRows();
FaultRows smallToolRows();

/// The whole table.
FaultRows allRows();

/// So many lines that a file of them is written in several pieces.
std::string manyLines(const std::string& line);

}  // namespace norvik::tests
