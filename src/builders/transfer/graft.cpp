#include "builders/transfer/graft.h"

#include "builders/transfer/extract_part.h"
#include "front/finished_file.h"
#include "text/columns.h"
#include "text/rewrite_pass.h"

#include <utility>

namespace norvik::builders {

namespace {

using text::begins;
using text::holds;

/// In the current folder, not the program folder.
constexpr std::string_view kResult = "newcr2.doc";
constexpr std::string_view kReference = "figureResFile";

auto holding(std::string_view wanted) {
  return [wanted](std::string_view line) { return holds(line, wanted); };
}

}  // namespace

Graft::Graft(front::Session& session, std::string destination)
    : session_(session), opening_(session.opening), destination_(std::move(destination)) {}

void Graft::next(std::string_view text) {
  session_.front.messageBox(text, "Next...", front::kOk);
}

void Graft::waitUntil(const std::function<bool()>& done) {
  while (!done()) session_.front.waitForOperator();
}

void Graft::askForGeometry() {
  opening_.FileChooser.setPattern("*.obj");
  next("Browse to the modified obj file and click it.");
  waitUntil([this] { return text::extension(opening_.FileLabel.caption()) == "obj"; });
  const std::string& path = opening_.FileChooser.path();
  geometry_ = "figureResFile :Runtime:Geometries:" + path.substr(path.rfind('\\') + 1) + ":" +
              opening_.FileLabel.caption();
}

void Graft::openFiles() {
  opening_.FileChooser.setPattern("*.cr2");
  in_.emplace(session_.disk, destination_, text::LineOnHand::Read::lines);
  text::keepApart(session_.disk, destination_, kResult);
  text::ignoringErrors([this] { session_.disk.remove(kResult); });
  out_.emplace(session_.disk, kResult, text::LineWriter::Mode::append);
  const bool found = in_->copyTo(*out_, holding(kReference), {kReference});
  out_->line(found ? in_->line() : in_->read());
}

void Graft::askForName() {
  opening_.NameBox.show();
  next("Enter a name for the new body part.");
  opening_.setFocus(opening_.NameBox);
  waitUntil([this] { return text::extension(opening_.FileLabel.caption()) != "obj"; });
  opening_.NameBox.setText({});
  opening_.NameBox.hide();
  part_ = opening_.NameLabel.caption();
}

void Graft::writeStorage() {
  bool actorSeen = false;
  for (;;) {
    const bool found =
        in_->copyTo(*out_,
                    [&](std::string_view line) {
                      return holds(line, kReference) || (!actorSeen && begins(line, "actor"));
                    },
                    {kReference, "actor"});
    if (!found) in_->read();
    if (holds(in_->line(), kReference)) break;
    actorSeen = true;
    suffix_ = text::rightmost(in_->line(), 2);
    out_->line(in_->line());
  }
  part_ += suffix_;
  out_->line(geometry_);
  out_->line("actor ", part_);
  extract_.emplace(session_.disk, opening_.inProgramFolder(kBodyPartFile),
                   text::LineOnHand::Read::lines);
  extract_->read();
  for (int i = 0; i < 4; ++i) out_->line(extract_->read());
  // In place of the figure's own second reference, which is left out.
  out_->line(geometry_);
}

bool Graft::passActors() {
  session_.hourglass(true);
  std::string actor;
  for (;;) {
    const bool found = in_->copyTo(*out_,
                                   [](std::string_view line) {
                                     return begins(line, "figure") || begins(line, "actor ") ||
                                            holds(line, "Custom");
                                   },
                                   {"figure", "actor ", "Custom"});
    if (!found) in_->read();
    const std::string& line = in_->line();
    if (begins(line, "figure")) return true;
    if (begins(line, "actor ")) actor = text::from(line, 7);
    if (holds(line, "Custom")) {
      session_.hourglass(false);
      const auto answer = session_.front.messageBox(
          "The body part " + actor +
              " has geometry embedded in the CR2.  If it is a parent or child in the hierarchy of "
              "your new body part, the transfer won't work properly.  Do you want to continue?",
          "Alert!", front::kYesNo);
      if (answer == front::Answer::no) {
        out_->close();
        opening_.FileLabel.setCaption({});
        return false;
      }
      session_.hourglass(true);
    }
    out_->line(line);
  }
}

void Graft::writeChannels() {
  out_->line(in_->line());
  out_->line("\t{");
  out_->line("\t\tname\t", text::withoutLast(part_, 2));
  for (int i = 0; i < 4; ++i) extract_->read();
  for (int i = 0; i < 7; ++i) out_->line(extract_->read());
  out_->line(parentLine(extract_->read()));
  for (int i = 0; i < 2; ++i) out_->line(extract_->read());
  copyExtract();
}

/// The parent keeps its name, which is noted, and gets this figure's suffix.
std::string Graft::parentLine(const std::string& line) {
  const std::size_t blank = text::column(line, " ");
  parent_ = text::before(text::from(line, blank + 1), ":");
  return "\t" + line.substr(0, blank) + parent_ + suffix_;
}

/// The rest of the extract, with this figure's suffix and without the morphs.
void Graft::copyExtract() {
  while (!extract_->atEnd()) {
    extract_->read();
    if (holds(extract_->line(), "otherActor")) {
      out_->line(text::withoutLast(extract_->line(), 2), suffix_);
      extract_->read();
    }
    if (holds(extract_->line(), "targetGeom")) {
      extract_->searchUntil([](std::string_view line) { return text::column(line, "twist") >= 2; },
                            {"twist"});
    }
    out_->line(extract_->line());
  }
}

void Graft::writeUnderParent(std::string_view keyword) {
  out_->line("\t" + std::string{keyword} + "    " + part_);
  out_->line("\t\t\t" + parent_ + suffix_ + " ");
}

void Graft::writeChild() {
  // A figure without chains ends here with its last line on hand, which is written again.
  if (!holds(in_->line(), "inkyChain")) {
    in_->copyTo(*out_, holding("inkyChain"), {"inkyChain"});
  }
  writeUnderParent("addChild");
  out_->line(in_->line());
}

void Graft::writeWeld() {
  session_.hourglass(true);
  if (!holds(in_->line(), "allows")) {
    const bool found = in_->copyTo(*out_, holding("allows"), {"allows"});
    if (!found) in_->read();
  }
  writeUnderParent("weld");
  out_->line(in_->line());
  in_->copyRest(*out_);
  out_->close();
}

void Graft::finish() {
  const std::size_t folder = destination_.rfind('\\') + 1;
  const std::string result = destination_.substr(0, folder) + "New-" + destination_.substr(folder);
  session_.disk.rename(kResult, result);
  session_.hourglass(false);
  opening_.FileLabel.setCaption({});
  session_.front.tellOf({.path = result});
  session_.front.messageBox("New CR2 saved as " + result + ".", "Finished!", front::kOk);
}

}  // namespace norvik::builders
