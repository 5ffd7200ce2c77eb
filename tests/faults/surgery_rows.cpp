// Removals of morphs and body parts, and renames.

#include "faults/rows.h"

namespace norvik::tests {

namespace {

std::string lines(std::initializer_list<std::string> parts) {
  std::string text;
  for (const std::string& part : parts) text += part + "\r\n";
  return text;
}

std::string stored(const std::string& actor) {
  return lines({"actor " + actor, "\t{", "\tstorageOffset 0 0 0", "\tgeomHandlerGeom 13 x", "\t}"});
}

std::string block(const std::string& actor, const std::string& channels) {
  return lines({"actor " + actor, "\t{", "\tname\tPart", "\ton", "\tchannels", "\t\t{"}) +
         channels + lines({"\t\t}", "\t}"});
}

constexpr int kMany = 5000;  ///< so many deltas that a figure is written in several pieces

std::string morph(const std::string& name, int deltas = 1) {
  std::string text =
      lines({"\t\ttargetGeom " + name, "\t\t\t{", "\t\t\tname " + name, "\t\t\tinitValue 0",
             "\t\t\tinterpStyleLocked 0", "\t\t\tdeltas", "\t\t\t\t{"});
  for (int i = 0; i < deltas; ++i) text += "\t\t\t\td " + std::to_string(i) + " 0.01 0.02 0\r\n";
  return text + lines({"\t\t\t\t}", "\t\t\t}"});
}

const std::string kTwist = lines({"\t\ttwistY t", "\t\t\t{", "\t\t\t}"});

std::string child(const std::string& name, const std::string& parent) {
  return lines({"\taddChild\t" + name, "\t\t\t" + parent});
}

/// A figure whose head is called `head`, with channels of its own; without a head where it is
/// empty.
std::string figure(const std::string& head, const std::string& channels) {
  const std::string reference = lines({"figureResFile :Runtime:Geometries:doll.obj"});
  const bool whole = !head.empty();
  return lines({"{"}) + reference + stored("BODY:1") + (whole ? stored(head) : "") +
         stored("hat:1") + reference + block("BODY:1", "") + (whole ? block(head, channels) : "") +
         block("hat:1", kTwist) + lines({"figure", "\t{", "\tname\tDoll", "\troot\tBODY:1"}) +
         (whole ? child(head, "BODY:1") : "") + child("hat:1", whole ? head : "BODY:1") +
         lines({"\tmaterial skin", "\t\t{", "\t\tKdColor 1 1 1 1", "\t\tKaColor 0 0 0 1",
                "\t\tKsColor 0 0 0 1", "\t\ttextureMap NO_MAP", "\t\t}", "\t}", "}"});
}

/// What the operator does, and what the figure becomes by it.
struct Work {
  const char* name;
  std::string before;   ///< the question that leads to the dialog
  std::string trigger;  ///< what runs the pass
  std::string figure;
  std::string result;
  bool mayFailInSilence =
      false;  ///< a removal of morphs says nothing when it cannot replace a file
};

Work workNamed(const std::string& name) {
  const std::string both = figure("head:1", morph("Smile") + morph("Frown", kMany) + kTwist);
  const std::string view = "item ListActors head:1\nclick PictureViewChannels\n";
  const std::string armed = "click PictureTrash\n";
  if (name == "Morph") {
    return {"Morph",
            view + armed + "item ListChannels Smile\n",
            "drop ListChannels PictureTrash\n",
            both,
            figure("head:1", morph("Frown", kMany) + kTwist),
            true};
  }
  if (name == "Morphs") {
    return {"Morphs",
            view + armed + "select ListChannels 2 4\n",
            "drop ListChannels PictureTrash\n",
            both,
            figure("head:1", kTwist),
            true};
  }
  if (name == "Part") {
    return {"Part", "item ListActors head:1\n" + armed, "drop ListActors PictureTrash\n", both,
            figure("", "")};
  }
  if (name == "Parts") {
    // The hat is the figure's last part: the pairs of its section are then off by one line.
    std::string result = figure("", "");
    const std::string hat = stored("hat:1");
    result.erase(result.find(hat), hat.size());
    const std::string hatBlock = block("hat:1", kTwist);
    result.erase(result.find(hatBlock), hatBlock.size());
    const std::string tail = result.substr(result.find("\taddChild"));
    result.erase(result.find("\taddChild"));
    const auto secondEnd = tail.find("\r\n", tail.find("BODY:1")) + 2;
    const auto thirdEnd = tail.find("\r\n", secondEnd) + 2;
    const auto fourthEnd = tail.find("\r\n", thirdEnd) + 2;
    result += tail.substr(secondEnd, thirdEnd - secondEnd) + lines({"\taddChild\that:1"}) +
              tail.substr(fourthEnd);
    return {"Parts", "select ListActors 1 2\n" + armed, "drop ListActors PictureTrash\n", both,
            result};
  }
  const std::string rename = view + "click PictureRenameMorph\n";
  const std::string typed = "click PictureRenameMorph\ntype TextMorphRename Neu\n";
  if (name == "RenamePart") {
    return {"RenamePart", rename + "click OptionBodyPartRename\n" + typed,
            "key TextMorphRename Enter\n", both,
            figure("Neu:1", morph("Smile") + morph("Frown", kMany) + kTwist)};
  }
  return {"RenameMorph", rename + "click OptionChannelRename\nitem ListChannels Smile\n" + typed,
          "key TextMorphRename Enter\n", both,
          figure("head:1", morph("Neu") + morph("Frown", kMany) + kTwist)};
}

/// Saved over the figure itself, over another one, or under a new name.
ToolUnderFaults surgery(const std::string& name, const std::string& target) {
  const Work work = workNamed(name);
  ToolUnderFaults tool{
      name,
      {{"figures/doll.cr2", work.figure}, {"figures/other.cr2", "an older figure\r\n"}},
      "choose C:\\figures\\doll.cr2\nclick MenuFileOpen\n" + work.before,
      "answer Yes\nchoose C:\\figures\\" + target + "\n" + work.trigger,
      "figures/" + target,
      work.result,
      {}};
  // What runs before have left.
  for (const char* scratch : {"XMorph.txt", "XMorph1.txt", "cr2.doc", "cr21.doc", "RenMorph.txt"}) {
    tool.files[std::string("Norvik/") + scratch] = "of an earlier run\r\n";
  }
  tool.silent = work.mayFailInSilence;
  return tool;
}

}  // namespace

FaultRows surgeryRows() {
  FaultRows rows;
  for (const std::string name : {"Morph", "Morphs", "Part", "Parts", "RenameMorph", "RenamePart"}) {
    const std::string title = name.starts_with("Rename") ? name : "Remove" + name;
    rows.push_back({title, [name] { return surgery(name, "doll.cr2"); }});
    rows.push_back({title + "OntoOther", [name] { return surgery(name, "other.cr2"); }});
  }
  rows.push_back({"RemoveMorphAsNew", [] { return surgery("Morph", "new.cr2"); }});
  return rows;
}

}  // namespace norvik::tests
