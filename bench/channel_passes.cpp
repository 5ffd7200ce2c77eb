// The surgery on channels, but for that on dials.

#include "bench_desk.h"
#include "channels/channel_views.h"
#include "channels/copy_morph.h"
#include "channels/removal/morph_removal.h"
#include "channels/removal/part_removal.h"
#include "channels/renaming/rename_passes.h"
#include "pass_groups.h"

namespace norvik::bench {

namespace {

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

void removeMorph(Bench& bench) {
  text::RewritePass pass(bench.disk, bench.path, "C:\\Norvik\\XMorph.txt");
  channels::removeItem(bench.session, pass,
                       {channels::RemovedItem::Kind::morph, "lToeExtra300", {}}, "lToe:1");
}

void removePart(Bench& bench) {
  text::RewritePass pass(bench.disk, bench.path, "C:\\Norvik\\cr2.doc");
  channels::removePart(pass, "abdomen:1");
}

void renameMorph(Bench& bench) {
  text::RewritePass pass(bench.disk, bench.path, "C:\\Norvik\\RenMorph.txt");
  channels::renameMorph(pass, "lToeExtra300", "TheToe");
}

void renamePart(Bench& bench) {
  text::RewritePass pass(bench.disk, bench.path, "C:\\Norvik\\RenMorph.txt");
  channels::renamePart(pass, {"head:1", "skull:1"});
}

}  // namespace

std::vector<Pass> channelPasses() {
  using enum Kind;
  using enum Figure;
  return {pass("ViewChannels", read, plain,
               [](Bench& bench) { channels::ViewChannels(bench.session, bench.path); }),
          pass("copy of a morph", copy, plain, copyMorph),
          pass("removal of a morph", rewrite, plain, removeMorph),
          pass("removal of a body part", rewrite, plain, removePart),
          pass("rename of a morph", rewrite, plain, renameMorph),
          pass("rename of a body part", rewrite, plain, renamePart)};
}

}  // namespace norvik::bench
