#pragma once
// The rewrite of one colour line of a figure.

#include "graphics/colour.h"
#include "text/disk.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::materials {

/// The position behind the first field that is exactly "material " and the name without the blanks
/// at its ends; nothing if there is none, as for every name that the file has with a blank at its
/// end.
std::optional<std::uint64_t> findMaterial(const text::Disk& disk, std::string_view path,
                                          std::string_view name);

/// Copies a figure with the colour as a KdColor line in place of the first line behind `position`
/// that begins with `key`, with or without two tabs. The line may be another material's. Throws
/// FileError inputPastEnd (62) if there is none; what was copied stands.
void writeColour(text::Disk& disk, const std::string& path, const std::string& scratch,
                 std::string_view key, graphics::Colour colour, std::uint64_t position);

}  // namespace norvik::materials
