#include "erc/link_walk.h"

#include "erc/figure_lists.h"
#include "erc/joint_lists.h"
#include "erc/joint_ratio.h"
#include "erc/link_kinds.h"
#include "erc/link_writer.h"
#include "erc/morph_lists.h"
#include "figure/figure_number.h"

#include <functional>

namespace norvik::erc {

namespace {

class LinkWalk {
 public:
  LinkWalk(front::Session& session, FormECM& form) : session_(session), form_(form) {}

  void pickChannel() {
    if (++form_.PickCount == 1) {
      pickSlaved(std::string{form_.ListControlledMorph.chosen()});
    } else {
      pickMaster(std::string{form_.ListControlledMorph.chosen()});
    }
  }

  void pickFigure() {
    const std::string figure{form_.ListConFigECM.chosen()};
    form_.TextPBM2.setText(figure);
    warnOfNumberedFigure(figure);
    form_.ListConFigECM.hide();
    form_.LabelConFigECM.hide();
    form_.LabelMCControled.show();
    form_.ListControlledMorph.show();
    if (isKind(form_, Kind::JCM)) {
      form_.ListControlledMorph.clear();
      AddJoints(session_, form_);
    }
    form_.LabelMCMaster.show();
  }

  void pickGroup() {
    form_.TextPBMRatio.setTip({});
    form_.TextPBM4.show();
    form_.LabelPBM4.show();
    form_.TextPBM4.setText(text::trimmed(text::before(form_.ListActorsECM.chosen(), ":")));
    showRatio();
    if (const KindOfLink* kind = kindOnView(form_)) keepChannels(*kind);
  }

  void showRatio() {
    form_.LabelPBMRatio.show();
    form_.TextPBMRatio.show();
  }

  void write() {
    const KindOfLink* kind = kindOnView(form_);
    if (kind == nullptr) return;
    form_.LabelWait.show();
    session_.hourglass(true);
    writeLink(session_, form_, *kind);
    form_.LabelDone.show();
    session_.hourglass(false);
  }

 private:
  void pickSlaved(const std::string& channel) {
    form_.TextPBM1.show();
    form_.LabelPBM1.show();
    form_.TextPBM1.setText(channel);
    form_.TextPBM2.show();
    form_.LabelPBM2.show();
    form_.ListConFigECM.clear();
    form_.TextPBM2.setText(firstFigureName(session_));
    if (const KindOfLink* kind = kindOnView(form_)) listMasters(kind->kind);
  }

  /// The channels that the master is chosen from. PBM and MCM keep the list of morphs, unless a
  /// link was saved since it was made.
  void listMasters(Kind kind) {
    if (kind != Kind::PBM && kind != Kind::MCM) form_.ListControlledMorph.clear();
    switch (kind) {
      case Kind::CM:
      case Kind::MCT:
      case Kind::MCJ:
        refillMorphs(session_, form_);
        break;
      case Kind::JCM:
      case Kind::JCJ:
      case Kind::JCT:
        AddJoints(session_, form_);
        break;
      case Kind::TCM:
      case Kind::TCJ:
        AddTranslations(session_, form_);
        break;
      case Kind::PBM:
      case Kind::MCM:
        if (form_.FileWritten == 1) refillMorphs(session_, form_);
        break;
    }
  }

  void pickMaster(const std::string& channel) {
    form_.TextPBM3.show();
    form_.LabelPBM3.show();
    form_.TextPBM3.setText(text::before(channel, ":"));
    form_.PickCount = 0;
    form_.FigureNumber = figure::figureNumber(form_.TextPBM1.text());
    listActors(session_, form_, !isKind(form_, Kind::PBM));
  }

  void warnOfNumberedFigure(const std::string& figure) {
    if (text::holds(figure, "Figure ")) {
      session_.front.messageBox(
          "You should not use Figure 1, Figure 2 etc for the name of the controlling figure. If "
          "the figure is renamed later, the ERC won't work. Be careful.",
          "Note!", front::kOk);
    }
    if (text::holds(figure, "figure ")) {
      session_.front.messageBox(
          "You should not use figure 1, figure 2 etc for the name of the controlling figure. If "
          "the figure is renamed later, the ERC won't work.  Be careful.",
          "Note!", front::kOk);
    }
  }

  void keepChannels(const KindOfLink& kind) {
    const std::string& slaved = form_.TextPBM1.text();
    const std::string& master = form_.TextPBM3.text();
    switch (kind.kind) {
      case Kind::JCT:
      case Kind::MCT:
        form_.MasterChannel = master;
        form_.SecondChannel = slaved;
        break;
      case Kind::TCM:
        form_.MasterChannel = slaved;
        form_.SecondChannel = master;
        break;
      case Kind::MCJ:
      case Kind::TCJ:
        form_.SlavedChannel = slaved;
        break;
      case Kind::JCJ:
        form_.MasterChannel = master;
        form_.SlavedChannel = slaved;
        writeJointToJoint();
        break;
      case Kind::JCM:
      case Kind::PBM:
      case Kind::CM:
      case Kind::MCM:
        break;
    }
  }

  /// The link is complete with its group: it is written at once.
  void writeJointToJoint() {
    form_.TextPBMRatio.setText(
        ratioOfJoints(form_.ListMinMax, form_.MasterChannel, form_.SlavedChannel));
    form_.TextPBMRatio.setTip("Changing this ratio is not recommended.");
    write();
  }

  front::Session& session_;
  FormECM& form_;
};

}  // namespace

void wireLinkWalk(front::Session& session, FormECM& form) {
  // What the operator does while a list is being filled waits for the next one.
  const auto step = [&session, &form](void (LinkWalk::*take)()) {
    return [&session, &form, take] {
      if (form.Listing) return;
      LinkWalk walk(session, form);
      (walk.*take)();
    };
  };
  const auto onEnter = [](front::TextBox& box, std::function<void()> act) {
    box.key.add([act = std::move(act)](const std::string& key) {
      if (key == "Enter") act();
    });
  };
  form.ListControlledMorph.clicked.add(step(&LinkWalk::pickChannel));
  form.ListConFigECM.clicked.add(step(&LinkWalk::pickFigure));
  form.ListActorsECM.clicked.add(step(&LinkWalk::pickGroup));
  onEnter(form.TextPBM1, [&session, &form] { listFigures(session, form); });
  onEnter(form.TextPBM3, [&session, &form] { listActors(session, form, false); });
  onEnter(form.TextPBM4, [&session, &form] {
    LinkWalk(session, form).showRatio();
    form.setFocus(form.TextPBMRatio);
  });
  onEnter(form.TextPBMRatio, step(&LinkWalk::write));
  form.LabelDone.clicked.add([&session, &form] {
    form.LabelDone.hide();
    session.hourglass(false);
    session.unload(form);
  });
  form.LabelCancel.clicked.add([&session, &form] { session.unload(form); });
}

}  // namespace norvik::erc
