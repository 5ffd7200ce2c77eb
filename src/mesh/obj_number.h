#pragma once
// Numbers as the mesh tools take them out of a line.

#include <cstddef>
#include <string_view>

namespace norvik::obj {

/// The leading number of a text, 0 if there is none. Blanks and tabs in front are skipped; one
/// behind the number ends it, so that a third texture coordinate, or the rest of a line in front of
/// a slash, does not count.
double leadingNumber(std::string_view text);

/// A number in single precision. Throws FileError overflow (6) when that cannot hold it.
float toSingle(double number);

/// The leading number in single precision, as toSingle.
float leadingSingle(std::string_view text);

/// The leading number as an index: rounded, halves to the even number; 0 for a negative number and
/// for one that no count reaches.
std::size_t leadingIndex(std::string_view text);

}  // namespace norvik::obj
