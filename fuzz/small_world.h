#pragma once
// A drive with a file of each kind on it.

#include "memory_host.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace norvik::fuzz {

/// Puts the files on drive C, at "/c": figures in the root folder, what they refer to below Poser.
/// The bytes say which lines of which file are taken out, doubled or cut, so that files of all
/// degrees of damage come about; without a byte the files are whole. Returns the system paths of
/// the files that a dialog may be answered with, some of which are not there.
std::vector<std::string> makeSmallWorld(MemoryHost& host, std::span<const std::uint8_t> damage);

}  // namespace norvik::fuzz
