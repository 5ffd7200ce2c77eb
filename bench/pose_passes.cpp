// What is made of figures for the library of poses, and the welding of two poses.

#include "bench_desk.h"
#include "pass_groups.h"
#include "pose/mat_builder.h"
#include "pose/mat_lister.h"
#include "pose/mor_skeleton.h"
#include "pose/part_lister.h"
#include "pose/pose_builder.h"
#include "pose/weld_lists.h"
#include "pose/weld_merge.h"

namespace norvik::bench {

namespace {

template <typename Form>
Form& formNamed(Bench& bench, std::string_view name) {
  auto& form = dynamic_cast<Form&>(*bench.session.findForm(name));
  form.setLoaded(true);
  return form;
}

pose::FormPZ2& poseForm(Bench& bench) {
  auto& form = formNamed<pose::FormPZ2>(bench, "FormPZ2");
  form.path = bench.path;
  return form;
}

void listParts(Bench& bench) {
  pose::FormPZ2& form = poseForm(bench);
  pose::ListTheActorsPZ2(bench.session, form);
  mustHold(form.ListActorsPZ2.count() > 0, "no parts");
}

/// A pose of all parts is about as large as the figure.
void buildPose(Bench& bench) {
  pose::FormPZ2& form = poseForm(bench);
  for (const char* part :
       {"BODY",     "hip",   "abdomen", "chest",  "neck",     "head",  "rCollar", "rShldr",
        "rForeArm", "rHand", "lCollar", "lShldr", "lForeArm", "lHand", "rThigh",  "rShin",
        "rFoot",    "rToe",  "lThigh",  "lShin",  "lFoot",    "lToe"}) {
    form.ListActorsWanted.add(part);
  }
  pose::buildPose(bench.session, form);
  mustHold(bench.disk.exists("C:\\figureNew.pz2"), "no pose");
}

void buildMat(Bench& bench) {
  pose::FormPZ2& form = poseForm(bench);
  pose::ListMaterialsMATPZ2(bench.session, form);
  mustHold(form.ListMaterialsMAT.count() > 0, "no materials");
  form.CheckAllMat.setValue(true);
  bench.choose("mat.pz2");
  pose::MakeMat(bench.session, form);
  mustHold(bench.disk.exists("C:\\mat.pz2"), "no MAT file");
}

void writeSkeleton(Bench& bench) {
  auto& form = formNamed<pose::FormMOR>(bench, "FormMOR");
  pose::writeMorSkeleton(bench.session, form);
  mustHold(form.ListMorphs.count() > 0, "no morphs");
}

void listGivingPose(Bench& bench) {
  auto& form = formNamed<pose::FormPZ2Combine>(bench, "FormPZ2Combine");
  form.LabelFileSecond.setCaption(bench.path);
  pose::listSecondFile(bench.session, form);
  mustHold(form.ListFile2.count() > 0, "no morphs");
}

void mergePoses(Bench& bench) {
  auto& form = formNamed<pose::FormPZ2Combine>(bench, "FormPZ2Combine");
  form.LabelFileFirst.setCaption(bench.path);
  pose::mergePoses(bench.session, form);
  mustHold(form.ListActors1.count() > 0, "no morphs");
}

}  // namespace

std::vector<Pass> posePasses() {
  using enum Kind;
  using enum Figure;
  return {pass("list of a pose's parts", read, plain, listParts),
          pass("pose of all parts", rewrite, plain, buildPose),
          pass("MAT file, lists and copy", rewrite, plain, buildMat),
          pass("MOR skeleton", read, plain, writeSkeleton),
          pass("weld, the pose that gives", read, plain, listGivingPose),
          pass("weld, the pose that receives", rewrite, plain, mergePoses)};
}

}  // namespace norvik::bench
