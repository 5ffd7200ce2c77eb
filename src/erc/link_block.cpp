#include "erc/link_block.h"

#include "text/columns.h"

namespace norvik::erc {

namespace {

constexpr std::string_view kTabs = "\t\t\t";

std::string indented(std::string_view text) {
  return std::string{kTabs}.append(text);
}

/// A master that is a joint or a translation goes by the first letters of its text. JCM's cut is
/// made for MCM too, where it leaves four letters of a morph's name.
std::string_view masterChannel(const FormECM& form, const KindOfLink& kind) {
  constexpr std::size_t kJoint = 4;        // xrot
  constexpr std::size_t kTranslation = 5;  // xtran
  const std::string& master = form.TextPBM3.text();
  switch (kind.kind) {
    case Kind::PBM:
    case Kind::CM:
    case Kind::MCJ:
    case Kind::MCT:
      return master;
    case Kind::TCM:
    case Kind::TCJ:
      return text::leftmost(master, kTranslation);
    case Kind::JCM:
    case Kind::MCM:
    case Kind::JCJ:
    case Kind::JCT:
      return text::leftmost(master, kJoint);
  }
  return master;
}

}  // namespace

std::string ratioLine(std::string_view ratio) {
  return indented("deltaAddDelta ").append(ratio);
}

std::array<std::string, 5> linkBlock(const FormECM& form, const KindOfLink& kind) {
  return {indented(kLinkStart), indented(form.TextPBM2.text()), indented(form.TextPBM4.text()),
          indented(masterChannel(form, kind)), ratioLine(form.TextPBMRatio.text())};
}

}  // namespace norvik::erc
