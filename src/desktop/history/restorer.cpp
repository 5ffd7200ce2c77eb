#include "desktop/history/restorer.h"

#include "desktop/words.h"

namespace norvik::desktop {

namespace {

constexpr const char* kTrigger = "Undo";

}  // namespace

QString inWords(const text::HistoryEntry& entry) {
  QString words =
      shown(text::fileTitle(entry.path)) + QStringLiteral(", ") + shown(text::lossName(entry.what));
  if (!entry.tool.empty()) words += QStringLiteral(" by ") + shown(entry.tool);
  if (!entry.when.empty()) words += QStringLiteral(" on ") + shown(entry.when);
  return words;
}

bool Restorer::restore(std::uint64_t number) {
  if (history() == nullptr || !dispatcher_.open()) return false;
  const auto entry = history()->find(number);
  if (!entry) return false;
  bool done = false;
  dispatcher_.run(kTrigger, [&] {
    session_.disk.restore(*entry);
    done = true;
  });
  if (done) listAgain(entry->path);
  return done;
}

void Restorer::undoLast() {
  if (history() == nullptr || !dispatcher_.open()) return;
  const auto entries = history()->entries();
  if (entries.empty()) {
    asker_.box(QStringLiteral("Undo"), QStringLiteral("No earlier version of any file is kept."),
               front::kOk | front::kInformation);
    return;
  }
  const text::HistoryEntry& last = entries.front();
  const QString question =
      QStringLiteral(
          "Put back this earlier version?\n\n%1\n\n%2\n\nThe file that it replaces is "
          "kept in turn.")
          .arg(shown(last.path), inWords(last));
  const auto answer =
      asker_.box(QStringLiteral("Undo"), question, front::kYesNo | front::kQuestion);
  if (answer == front::Answer::yes) restore(last.number);
}

void Restorer::openAgain(const std::string& path) {
  front::Opening& opening = session_.opening;
  opening.OpenedPath = path;
  opening.SkipOpenDialog = true;
  dispatcher_.raise(opening.MenuFileOpen.clicked);
}

void Restorer::openSourceAgain(const std::string& path) {
  front::Control& trigger = session_.opening.LabelOpenSource;
  if (!trigger.reachable()) return;
  frontEnd_.withChosen(path, [&] {
    dispatcher_.raise(trigger.pressed, front::Mouse{});
    dispatcher_.raise(trigger.released, front::Mouse{});
    dispatcher_.raise(trigger.clicked);
  });
}

void Restorer::listAgain(const std::string& path) {
  const front::Opening& opening = session_.opening;
  const auto isIt = [&](const std::string& open) {
    return !open.empty() && session_.disk.isSameFile(open, path);
  };
  const bool mesh = opening.LabelOBJFileName.visible();
  const std::string destination =
      mesh ? opening.LabelOBJFileName.caption() : opening.LabelFileNameForEditor.caption();
  const std::string source = mesh ? std::string{} : opening.LabelChannelFileNameForEditor.caption();
  const bool hasSource = !source.empty() && source != destination;
  const bool destinationChanged = isIt(destination);
  if (destinationChanged) openAgain(destination);
  if (hasSource && (destinationChanged || isIt(source))) openSourceAgain(source);
}

}  // namespace norvik::desktop
