// The links between dials.

#include "bench_desk.h"
#include "erc/change_ratio.h"
#include "erc/link_kinds.h"
#include "erc/link_writer.h"
#include "pass_groups.h"

namespace norvik::bench {

namespace {

/// What FormECM holds behind its choices; the result stays in the scratch file.
void writeLink(Bench& bench) {
  erc::FormECM form;
  form.LabelPBM.show();
  form.TextPBM1.setText("lToeExtra300");
  form.TextPBM2.setText("Figure 1");
  form.TextPBM3.setText("lToeExtra299");
  form.TextPBM4.setText("lToe");
  form.TextPBMRatio.setText("1.000000");
  bench.answers().queueBox(front::Answer::yes);
  bench.answers().queueDialog({});
  erc::writeLink(bench.session, form, *erc::kindOnView(form));
  mustHold(bench.disk.exists("C:\\Norvik\\EMC.tmp"), "no link written");
}

void listLinks(Bench& bench) {
  bench.opening.PictureChangeRatio.released.raise({});
  const auto* form = dynamic_cast<erc::FormListEMCs*>(bench.session.findForm("FormListEMCs"));
  mustHold(form != nullptr && form->ListEMCs.count() > 2, "no links listed");
}

/// The result stays in the scratch file here as well.
void changeRatio(Bench& bench) {
  erc::FormListEMCs form;
  form.LabelTitle.setCaption(bench.path);
  form.ListEMCs.add("\tDelta Control Ratio: 1");
  form.ListEMCs.choose(0);
  form.RatioLines = {"", "Delta Control Ratio: 1#1000000"};
  form.Text1.setText("2");
  bench.answers().queueBox(front::Answer::no);
  erc::wireChangeRatio(bench.session, form);
  form.Text1.key.raise("Enter");
  mustHold(bench.disk.exists("C:\\Norvik\\ChangeRatio.txt"), "no ratio changed");
}

}  // namespace

std::vector<Pass> linkPasses() {
  using enum Kind;
  using enum Figure;
  return {pass("link", rewrite, plain, writeLink), pass("list of links", read, plain, listLinks),
          pass("ratio", rewrite, plain, changeRatio)};
}

}  // namespace norvik::bench
