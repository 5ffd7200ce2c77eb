#include "passes.h"

#include "channels/channel_views.h"
#include "channels/copy_morph.h"
#include "figure/actor_lister.h"
#include "figure/bracket_count.h"
#include "figure/check_sgi.h"
#include "figure/line_ending_repair.h"
#include "figure/map_lister.h"
#include "figure/material_lister.h"
#include "figure/open_file.h"
#include "figure/path_lister.h"
#include "figure/path_pass.h"
#include "figure/save.h"
#include "figure/space_chopper.h"
#include "headless/script_front_end.h"
#include "host.h"
#include "pose/mat_builder.h"
#include "pose/mat_lister.h"
#include "pose/mor_skeleton.h"
#include "pose/part_lister.h"
#include "pose/pose_builder.h"
#include "pose/weld_merge.h"
#include "text/line_reader.h"
#include "workbench/workbench.h"

#include <ostream>
#include <stdexcept>

namespace norvik::bench {

namespace {

/// A workbench whose drive C is the bench's folder, with a script in front of it that prints
/// nowhere.
class Bench {
 public:
  Bench(const std::string& folder, const std::string& file) : path("C:\\" + file) {
    disk.mount('C', folder);
    settings.set("Startup", "PLoc", "C:\\");
    opening.OpenedPath = path;
    opening.DestPath = path;
    opening.LabelFileNameForEditor.setCaption(path);
    opening.LabelChannelFileNameForEditor.setCaption(path);
  }

  headless::Answers& answers() { return front_.answers(); }
  void choose(const std::string& name) {
    answers().queueDialog({headless::DialogAnswer::Kind::file, "C:\\" + name});
  }

 private:
  UnflushedHost host_;
  std::ostream nowhere_{nullptr};
  headless::Transcript transcript_{nowhere_};
  headless::Outcome outcome_;
  headless::ScriptFrontEnd front_{transcript_, outcome_, {}};

 public:
  std::string path;
  text::Disk disk{host_};
  front::Settings settings;
  workbench::Workbench workbench{front_, disk, settings, "C:\\Norvik", ""};
  front::Session& session = workbench.session();
  front::Opening& opening = session.opening;
};

/// A pass must have done its work to count.
void mustHold(bool truth, const char* what) {
  if (!truth) throw std::runtime_error(what);
}

using Work = std::function<void(Bench& bench)>;

Pass pass(std::string name, Kind kind, Figure figure, const Work& work) {
  return {std::move(name), kind, figure,
          [work](const std::string& folder, const std::string& file) {
            Bench bench(folder, file);
            work(bench);
          }};
}

void readLines(Bench& bench) {
  text::LineReader in(bench.disk, bench.path);
  std::size_t bytes = 0;
  while (!in.atEnd()) bytes += in.line().size();
  mustHold(bytes > 0, "no lines");
}

void readFields(Bench& bench) {
  text::LineReader in(bench.disk, bench.path);
  std::size_t bytes = 0;
  while (!in.atEnd()) bytes += in.field().size();
  mustHold(bytes > 0, "no fields");
}

void repairLineEnds(Bench& bench) {
  text::ByteReader source(bench.disk, bench.path);
  text::LineWriter scratch(bench.disk, "C:\\f.new");
  figure::LineEndingRepair(source, scratch);
  scratch.close();
}

void passPaths(Bench& bench) {
  figure::PathSlots slots;
  slots.texture = "\"C:Poser:Runtime:textures:new.bmp\"";
  figure::passPaths(bench.session, slots);
}

void save(Bench& bench) {
  bench.opening.TextMainTex.setText("\"C:Poser:Runtime:textures:new.bmp\"");
  bench.opening.LabelMainTex.setFore(front::kPathEdited);
  bench.choose("saved.cr2");
  figure::saveFile(bench.session);
  mustHold(bench.disk.exists("C:\\saved.cr2"), "nothing saved");
}

void openWhole(Bench& bench) {
  bench.opening.SkipOpenDialog = true;
  figure::openFile(bench.session);
  mustHold(bench.opening.ListActors.count() > 0, "no actors");
  mustHold(bench.opening.ListMaterials.count() > 0, "no materials");
  mustHold(bench.opening.ListChannels.count() > 2, "no channels");
  mustHold(!bench.opening.TextMainTex.text().empty(), "no texture");
}

/// The figure into itself: as source and as destination it is as large as they come.
void copyMorph(Bench& bench) {
  front::Opening& opening = bench.opening;
  opening.LabelFileName.setCaption("destination");
  opening.LabelChannelFileName.setCaption("source");
  opening.TextMainOBJ.setText("Tilda:tilda.obj");
  opening.ListChannels.add("Channels for lToe:1");
  opening.ListChannels.add("\tlToeExtra300");
  opening.ListChannels.choose(1);
  bench.answers().queueBox(front::Answer::yes);
  bench.choose("copied.cr2");
  opening.PictureCopyToDest.released.raise({});
  mustHold(bench.disk.exists("C:\\copied.cr2"), "nothing copied");
}

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

/// A pose of all parts is about as large as the figure.
void buildPose(Bench& bench) {
  pose::FormPZ2& form = poseForm(bench);
  pose::ListTheActorsPZ2(bench.session, form);
  mustHold(form.ListActorsPZ2.count() > 0, "no parts");
  for (const std::string& part : form.ListActorsPZ2.items()) form.ListActorsWanted.add(part);
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

void mergePoses(Bench& bench) {
  auto& form = formNamed<pose::FormPZ2Combine>(bench, "FormPZ2Combine");
  form.LabelFileFirst.setCaption(bench.path);
  pose::mergePoses(bench.session, form);
  mustHold(form.ListActors1.count() > 0, "no morphs");
}

}  // namespace

std::string fileOf(Figure figure) {
  switch (figure) {
    case Figure::plain:
      return "figure.cr2";
    case Figure::lfEnds:
      return "lf.cr2";
    case Figure::oneBlank:
      return "one-blank.cr2";
    case Figure::blanks:
      return "blanks.cr2";
  }
  return {};
}

const std::vector<Pass>& passes() {
  using enum Kind;
  using enum Figure;
  static const std::vector<Pass> all{
      pass("whole-line read", read, plain, readLines),
      pass("field read", read, plain, readFields),
      pass("CheckSGI of a conventional file", read, plain,
           [](Bench& bench) { figure::CheckSGI(bench.session, bench.path); }),
      pass("ListTheActors", read, plain,
           [](Bench& bench) { figure::ListTheActors(bench.session, bench.path); }),
      pass("OpenCR2", read, plain,
           [](Bench& bench) { figure::OpenCR2(bench.session, bench.path); }),
      pass("MatLister", read, plain,
           [](Bench& bench) { figure::MatLister(bench.session, bench.path); }),
      pass("FindMapLocs", read, plain,
           [](Bench& bench) { figure::FindMapLocs(bench.session, bench.path); }),
      pass("ViewChannels", read, plain,
           [](Bench& bench) { channels::ViewChannels(bench.session, bench.path); }),
      pass("bracket count", read, plain,
           [](Bench& bench) {
             text::LineReader in(bench.disk, bench.path);
             mustHold(figure::countBrackets(in).left > 1, "no brackets");
           }),
      pass("LineEndingRepair, LF file", rewrite, lfEnds, repairLineEnds),
      pass("SpaceChopper, one line", rewrite, oneBlank,
           [](Bench& bench) { figure::SpaceChopper(bench.session, bench.path); }),
      pass("SpaceChopper, every line", rewrite, blanks,
           [](Bench& bench) { figure::SpaceChopper(bench.session, bench.path); }),
      pass("path pass", substitution, plain, passPaths),
      pass("Save", substitution, plain, save),
      pass("copy of a morph", copy, plain, copyMorph),
      pass("pose, list and copy of all parts", rewrite, plain, buildPose),
      pass("MAT file, lists and copy", rewrite, plain, buildMat),
      pass("MOR skeleton", read, plain, writeSkeleton),
      pass("weld, the pose that receives", rewrite, plain, mergePoses),
      pass("open", open, plain, openWhole)};
  return all;
}

}  // namespace norvik::bench
