#pragma once
// A look at a link before it is written.

#include "erc/form_ecm.h"
#include "front/session.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace norvik::erc {

/// Where a link would go: behind the header of this channel.
struct LinkPlace {
  std::string channel;     ///< its entry line, without indentation
  std::uint64_t line = 0;  ///< of the header's last line in the file, from 1
  bool linked = false;     ///< a link stands there already
};

struct LinkPreview {
  std::array<std::string, 5> lines;  ///< as they would be written
  std::optional<LinkPlace> place;    ///< nothing where the routine would find nothing
};

/// What FormECM's texts would write into the destination just now, found by the search of the
/// routine itself. Nothing is written, asked or said. Nothing without a kind of link.
std::optional<LinkPreview> previewLink(const front::Session& session, const FormECM& form);

}  // namespace norvik::erc
