#pragma once
// Columns of a line. Positions count from 1, as in the figure files' own documentation; this is the
// only place that turns them into offsets. None of these functions reads past a text's end.

#include <string>
#include <string_view>
#include <vector>

namespace norvik::text {

/// The first `count` characters, or the whole text if it is shorter.
std::string_view leftmost(std::string_view text, std::size_t count);

/// The last `count` characters, or the whole text if it is shorter.
std::string_view rightmost(std::string_view text, std::size_t count);

/// All from `column` on; empty if the text is shorter.
std::string_view from(std::string_view text, std::size_t column);

/// The column at which `token` first occurs, 0 if it does not.
std::size_t column(std::string_view text, std::string_view token);

/// Whether `token` occurs anywhere in the text.
bool holds(std::string_view text, std::string_view token);

/// Whether the text begins with `token`.
bool begins(std::string_view text, std::string_view token);

/// What stands in front of the first `token`; the whole text if there is none.
std::string_view before(std::string_view text, std::string_view token);

/// What stands behind the first `token`; the whole text if there is none.
std::string_view after(std::string_view text, std::string_view token);

/// Without the last `count` characters; empty if the text has no more than that.
std::string_view withoutLast(std::string_view text, std::size_t count);

/// Without the blanks at both ends; tabs stay.
std::string_view trimmed(std::string_view text);

/// The text with A to Z as small letters; other bytes stay.
std::string lowered(std::string_view text);

/// The text with a to z as capitals; other bytes stay.
std::string raised(std::string_view text);

/// Whether two texts differ in nothing but the case of A to Z.
bool equalIgnoringCase(std::string_view left, std::string_view right);

/// A file's type: the rightmost three characters of its path, as they stand.
std::string_view extension(std::string_view path);

/// What stands between the `divider`s, empty parts too; nothing of an empty text.
std::vector<std::string> parts(std::string_view text, char divider);

/// The text with every `wanted` replaced by `replacement`.
std::string replaced(std::string_view text, char wanted, char replacement);

}  // namespace norvik::text
