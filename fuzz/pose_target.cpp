// The pose, MAT and MOR builders and the welder against their steps, read by read.
// Steering: TOOL|READ SIZE|CHOSEN|BOXES. TOOL is one of cr2, pz3, hr2, pp2 (poses and MAT files),
// mor and weld (whose second pose is what stands behind the first line "====" of the text). CHOSEN
// are letters, "a" for the first item of a list; BOXES the check boxes that are on: a (all), m
// (maps), t (no transparency maps), w (white).

#include "desk.h"
#include "input.h"
#include "plain_poses.h"
#include "plain_text.h"
#include "pose/mat_builder.h"
#include "pose/mor_builder.h"
#include "pose/pose_builder.h"
#include "pose/pz2_editor.h"
#include "pose/weld.h"
#include "pose/weld_lists.h"

namespace {

using namespace norvik::fuzz;
namespace pose = norvik::pose;

struct Case {
  std::string tool;
  std::size_t readSize;
  std::vector<int> chosen;
  std::string boxes;
  std::string text;
};

bool on(const Case& given, char box) {
  return given.boxes.find(box) != std::string::npos;
}

/// The chosen ones of a list's items.
Lines chosenOf(const Case& given, const Lines& items) {
  Lines chosen;
  for (const int index : given.chosen) {
    if (static_cast<std::size_t>(index) < items.size()) {
      chosen.push_back(items[static_cast<std::size_t>(index)]);
    }
  }
  return chosen;
}

void requireWritten(const Desk& desk, const std::string& file, const PlainPose& wanted) {
  requireEqual(desk.host.bytesOf(file), withLineEnds(wanted.out), file);
}

struct Editor {
  explicit Editor(const Case& given) : desk(given.tool, given.text) {
    desk.host.limitReads(given.readSize);
    desk.opening.LabelFileNameForEditor.setCaption(desk.path);
    desk.session.addForm(form);
    pose::wirePz2Editor(desk.session, form);
    pose::wireDonePZ2(desk.session, form);
  }
  Desk desk;
  pose::FormPZ2 form;
};

void buildPose(const Case& given) {
  Editor editor(given);
  const PlainPose parts = plainParts(given.text);
  const int error = Desk::run([&] { editor.desk.session.load(editor.form); });
  require(error == parts.error, "the error of the parts' list");
  requireEqual(editor.form.ListActorsPZ2.items(), parts.first, "the parts");

  const Lines wanted = chosenOf(given, parts.first);
  for (const std::string& part : wanted) editor.form.ListActorsWanted.add(part);
  const PlainPose result = plainPartsPose(given.text, given.tool == "pz3", wanted);
  const int built = Desk::run([&] { pose::buildPose(editor.desk.session, editor.form); });
  require(built == result.error, "the error of the pose");
  requireWritten(editor.desk, built == 0 ? "/c/fNew.pz2" : "/c/Norvik/Pose.txt", result);
  require(editor.form.loaded() == (built != 0), "whether the form stays");
}

void buildMat(const Case& given) {
  Editor editor(given);
  const PlainKind kind = given.tool == "hr2"   ? PlainKind::hair
                         : given.tool == "pp2" ? PlainKind::prop
                                               : PlainKind::figure;
  const PlainPose lists = plainMatLists(given.text, kind);
  const int error = Desk::run([&] { editor.desk.opening.menuMatFile.clicked.raise(); });
  pose::FormPZ2& form = editor.form;
  require(error == lists.error, "the error of the materials' list");
  requireEqual(form.ListMaterialsMAT.items(), lists.first, "the materials");
  requireEqual(form.ListMATColors.items(), lists.second, "the colours");
  requireEqual(form.propLine, lists.third.empty() ? "" : lists.third[0], "the prop line");

  PlainMat choice{kind, on(given, 'a'), on(given, 'm'), on(given, 't'), on(given, 'w')};
  choice.wanted = chosenOf(given, lists.first);
  choice.colours = lists.second;
  choice.propLine = form.propLine;
  form.CheckAllMat.setValue(choice.all);
  form.CheckIncludeMaps.setValue(choice.maps);
  form.CheckNoTrans.setValue(choice.noTrans);
  form.CheckSetToWhite.setValue(choice.white);
  for (const std::string& name : choice.wanted) form.ListMaterialsMATWanted.add(name);
  const PlainPose result = plainMat(given.text, choice);
  const int built = Desk::run([&] { pose::MakeMat(editor.desk.session, form); });
  require(built == result.error, "the error of the MAT file");
  requireWritten(editor.desk, "/c/Norvik/Mat.pz2", result);
}

void buildMor(const Case& given) {
  Desk desk("cr2", given.text);
  desk.host.limitReads(given.readSize);
  desk.opening.LabelFileNameForEditor.setCaption(desk.path);
  pose::FormMOR form;
  pose::wireMorBuilder(desk.session, form);
  const PlainPose skeleton = plainSkeleton(given.text);
  const int error = Desk::run([&] { desk.session.load(form); });
  require(error == skeleton.error, "the error of the skeleton");
  requireWritten(desk, "/c/Norvik/Mor.txt", skeleton);
  requireEqual(form.ListMorphs.items(), skeleton.first, "the morphs");

  Lines values(skeleton.first.size(), "0");
  for (const int index : given.chosen) {
    if (static_cast<std::size_t>(index) >= values.size()) continue;
    form.ListMorphs.choose(index);
    form.TextValue.setText("." + std::to_string(index));
    form.TextValue.key.raise("Enter");
    for (std::size_t i = 0; i < values.size(); ++i) {
      const bool same = skeleton.first[i] == skeleton.first[static_cast<std::size_t>(index)];
      if (same) values[i] = "." + std::to_string(index);
    }
  }
  const PlainPose result = plainMor(withLineEnds(skeleton.out), values);
  const int built = Desk::run([&] { form.LabelDone.clicked.raise(); });
  require(built == result.error, "the error of the MOR file");
  requireWritten(desk, "/c/Norvik/Mor1.txt", result);
}

void weld(const Case& given) {
  constexpr std::string_view kBorder = "====\n";
  const auto border = given.text.find(kBorder);
  const std::string first = given.text.substr(0, border);
  const std::string second =
      border == std::string::npos ? "" : given.text.substr(border + kBorder.size());
  Desk desk("pz2", first);
  desk.host.addFile("/c/second.pz2", second);
  desk.host.limitReads(given.readSize);
  desk.opening.LabelFileNameForEditor.setCaption(desk.path);
  pose::FormPZ2Combine form;
  pose::wireWelder(desk.session, form);
  const PlainPose own = plainSettings(first);
  const int loading = Desk::run([&] { desk.session.load(form); });
  require(loading == own.error, "the error of the first pose");
  if (loading != 0) return;
  requireEqual(form.ListFile1.items(), own.first, "the first morphs");
  requireEqual(form.ListKeyLinesFirst.items(), own.second, "the first key lines");

  const PlainPose other = plainSettings(second);
  form.LabelFileSecond.setCaption("C:\\second.pz2");
  const int opening = Desk::run([&] { pose::listSecondFile(desk.session, form); });
  require(opening == other.error, "the error of the second pose");
  requireEqual(form.ListFile2.items(), other.first, "the second morphs");
  requireEqual(form.ListKeyLines.items(), other.second, "the second key lines");
  requireEqual(form.ListTGVP.items(), other.third, "the kinds");
  requireEqual(form.ListActors2.items(), other.fourth, "the actors");

  for (const int index : given.chosen) form.ListFile2.setSelected(index, true);
  const PlainPose result = plainWeld(first, own, other, given.chosen);
  const int welded = Desk::run([&] { form.LabelDone.clicked.raise(); });
  require(welded == result.error, "the error of the weld");
  requireWritten(desk, "/c/Norvik/Combine.pz2", result);
  if (welded == 0) require(form.ListNotFound.count() == 0, "the missing ones are gone");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Input input(data, size);
  const auto pieces = input.pieces(4);
  Case given{pieces[0], numberIn(pieces[1], 1, 4096), {}, pieces[3], input.text};
  for (const char letter : pieces[2].substr(0, 8)) {
    if (letter >= 'a' && letter <= 'z') given.chosen.push_back(letter - 'a');
  }
  if (given.tool == "mor") {
    buildMor(given);
  } else if (given.tool == "weld") {
    weld(given);
  } else {
    if (given.tool != "pz3" && given.tool != "hr2" && given.tool != "pp2") given.tool = "cr2";
    buildPose(given);
    buildMat(given);
  }
  return 0;
}
