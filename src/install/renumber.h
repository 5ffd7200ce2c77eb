#pragma once
// A numbered sequence of files renamed so that it sorts in order.
//
// menuRenumberFiles shows FormRenumber; CommandGo renames "1.obj", "2.obj" and on (or, where there
// is no "1.obj", the BMP files) of the folder to "001.obj", "002.obj" and on, up to the first
// number that is missing.

#include "front/session.h"
#include "install/form_renumber.h"

#include <string>
#include <vector>

namespace norvik::install {

/// One step of the sequence; a number of three or more digits keeps its name.
struct Renumbered {
  std::string from;
  std::string to;
};

/// The sequence in a folder; empty if there is no first file.
std::vector<Renumbered> sequenceIn(const text::Disk& disk, const std::string& folder);

void wireRenumber(front::Session& session, FormRenumber& form);

}  // namespace norvik::install
