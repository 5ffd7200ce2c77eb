#pragma once
// Between the bytes of the tools and the characters of the window.

#include <QString>

#include <string>
#include <string_view>

namespace norvik::desktop {

/// Bytes as the operator reads them: UTF-8 where they are that, else each byte the character of its
/// own number, as in the files of older systems.
QString shown(std::string_view bytes);

/// What the operator typed as bytes: in the coding of the text that stood there before, if that can
/// hold it, so that an edit does not recode what it leaves alone.
std::string typed(const QString& text, std::string_view before = {});

/// The same as shown(), with the line ends of a message made to those of the window.
QString shownMessage(std::string_view bytes);

/// A host path of the window as the host's bytes, and back.
std::string hostBytes(const QString& path);
QString hostName(std::string_view bytes);

}  // namespace norvik::desktop
