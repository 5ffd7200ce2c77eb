#pragma once
// The vertex indexes of an `f` line.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::obj {

/// The longest face line that counts; the record file keeps no more of it either.
inline constexpr std::size_t kFaceRecordLength = 500;

/// A face line with its corners in the opposite order, single blanks between them.
std::string turnedRound(std::string_view line);

/// Fills `indexes` with the vertex index of each token of a face line. A token ends at the first
/// slash that is left in the line, or else at its blank; a negative index is its value plus 1 and
/// stands for no vertex; a doubled blank leaves an index 0 unless only blanks follow it.
void readFaceTokens(std::string_view line, std::vector<std::size_t>& indexes);

}  // namespace norvik::obj
