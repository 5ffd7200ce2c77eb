#include "erc/link_kinds.h"

#include <algorithm>
#include <array>

namespace norvik::erc {

namespace {

using D = DialogERC;
using F = FormECM;

/// JCJ begins with a ratio of 1, and computes it when the link is complete.
constexpr auto kKinds = std::to_array<KindOfLink>({
    {Kind::JCM, Routine::JCM, &D::OptionJCM, &F::LabelJCM, "0.010000"},
    {Kind::PBM, Routine::PBM, &D::OptionPBM, &F::LabelPBM, "1.000000"},
    {Kind::CM, Routine::CM, &D::OptionCM, &F::LabelCM, "1.000000"},
    {Kind::JCJ, Routine::JCJ, &D::OptionJCJ, &F::LabelJCJ, "1.000000"},
    {Kind::JCT, Routine::JCT, &D::OptionJCT, &F::LabelJCT, "0.001000"},
    {Kind::MCT, Routine::JCT, &D::OptionMCT, &F::LabelMCT, "0.010000"},
    {Kind::TCM, Routine::JCT, &D::OptionTCM, &F::LabelTCM, "0.010000"},
    {Kind::MCJ, Routine::JCJ, &D::OptionMCJ, &F::LabelMCJ, "0.010000"},
    {Kind::TCJ, Routine::JCT, &D::OptionTCJ, &F::LabelTCJ, "1.000000"},
    {Kind::MCM, Routine::JCM, &D::OptionMCM, &F::LabelMCM, "0.010000"},
});

template <typename Test>
const KindOfLink* findKind(Test test) {
  const auto* found = std::find_if(kKinds.begin(), kKinds.end(), test);
  return found == kKinds.end() ? nullptr : found;
}

}  // namespace

std::span<const KindOfLink> kindsOfLink() {
  return kKinds;
}

const KindOfLink* chosenKind(const DialogERC& dialog) {
  return findKind([&](const KindOfLink& kind) { return (dialog.*kind.option).value(); });
}

const KindOfLink* kindOnView(const FormECM& form) {
  return findKind([&](const KindOfLink& kind) { return (form.*kind.label).visible(); });
}

bool isKind(const FormECM& form, Kind kind) {
  const KindOfLink* onView = kindOnView(form);
  return onView != nullptr && onView->kind == kind;
}

}  // namespace norvik::erc
