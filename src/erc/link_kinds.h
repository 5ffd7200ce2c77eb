#pragma once
// The ten kinds of link, and what differs between them.

#include "erc/dialog_erc.h"
#include "erc/form_ecm.h"

#include <span>
#include <string_view>

namespace norvik::erc {

/// In the order of the dialog's options. The first letters say what controls, the last what is
/// controlled: J a joint, T a translation, M a morph.
enum class Kind { JCM, PBM, CM, JCJ, JCT, MCT, TCM, MCJ, TCJ, MCM };

/// What writes the block into the file.
enum class Routine { PBM, CM, JCM, JCJ, JCT };

struct KindOfLink {
  Kind kind;
  Routine routine;
  front::OptionButton DialogERC::*option;
  front::Label FormECM::*label;
  std::string_view startRatio;
};

std::span<const KindOfLink> kindsOfLink();

/// The kind that the dialog's options say; null if none is set.
const KindOfLink* chosenKind(const DialogERC& dialog);

/// The kind whose label is on view; null if none is.
const KindOfLink* kindOnView(const FormECM& form);

/// Whether this kind's label is on view.
bool isKind(const FormECM& form, Kind kind);

}  // namespace norvik::erc
