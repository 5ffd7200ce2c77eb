// The whole open of a figure, for each extension, from the menu and from the command line.
// Steering: EXTENSION|ANSWERS|READ SIZE|START. Answers are o (OK), c (Cancel), y (Yes), n (No), in
// turn; "s" in the last piece opens the file as the program's command line.

#include "plain_repair.h"
#include "runner.h"
#include "text/columns.h"

#include <set>

namespace {

using norvik::fuzz::MemoryHost;
using norvik::fuzz::requireEqual;

/// An extension that the fuzzer may choose freely but for the bytes that end a name.
std::string extensionFrom(const std::string& piece) {
  std::string extension;
  for (const char c : piece.substr(0, 8)) {
    const bool name = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    if (name) extension += c;
  }
  return extension;
}

std::string queued(const std::string& answers) {
  std::string script;
  for (const char c : answers) {
    if (c == 'o') script += "answer OK\n";
    if (c == 'c') script += "answer Cancel\n";
    if (c == 'y') script += "answer Yes\n";
    if (c == 'n') script += "answer No\n";
  }
  return script;
}

/// What the open must leave of a file: the repairs that its kind gets.
struct Repairs {
  std::string file;
  bool backup = false;
};

Repairs expected(const std::string& text, const std::string& extension, const std::string& answers,
                 bool atStart) {
  static const std::set<std::string> figures{"cr2", "fc2", "pz2", "pz3", "hr2", "pp2"};
  static const std::set<std::string> refusable{"cr2", "fc2", "pz2"};
  static const std::set<std::string> startable{"cr2", "pz3"};
  const std::string kind = norvik::text::lowered(norvik::text::extension("f." + extension));
  const bool figure = atStart ? startable.contains(kind) : figures.contains(kind);
  const bool checked = figure || (atStart ? kind == "obj" : kind == "mtl");
  Repairs result{text};
  if (checked && !norvik::fuzz::isConventional(text)) {
    const auto answer = answers.find_first_of("ocyn");
    if (answer == std::string::npos) return result;  // nobody answers: the tool stops
    const bool refused = answers[answer] == 'c';
    if (refused && !atStart && refusable.contains(kind)) return result;
    if (!refused) result = {norvik::fuzz::repaired(text), true};
  }
  const int scanned = kind == "pz2" ? 20 : 100;
  if (figure && norvik::fuzz::beginsIndented(result.file, scanned)) {
    result.file = norvik::fuzz::chopped(result.file);
  }
  return result;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const norvik::fuzz::Input input(data, size);
  const auto pieces = input.pieces(4);
  const std::string extension = extensionFrom(pieces[0]);
  const bool atStart = pieces[3].starts_with('s');
  const std::string name = "f." + extension;
  const std::string path = "C:\\" + name;
  MemoryHost host;
  norvik::fuzz::addFolders(host);
  host.addFile("/c/" + name, input.text);
  host.limitReads(norvik::fuzz::numberIn(pieces[2], 1, 4096));

  const std::string start = "setting Startup PLoc C:\\Poser\\\n" + queued(pieces[1]) + "start\n";
  const std::string open = "choose " + path + "\nclick MenuFileOpen\n";
  const std::string panes = "show ListActors\nshow ListChannels\nshow ListMaterials\nexit\n";
  norvik::fuzz::runInMemory(host, start + (atStart ? "" : open) + panes, atStart ? path : "");

  const Repairs wanted = expected(input.text, extension, pieces[1], atStart);
  requireEqual(host.bytesOf("/c/" + name), wanted.file, "the file");
  const std::string backup = "/c/f" + norvik::text::raised(norvik::text::extension(path)) + ".bak";
  norvik::fuzz::require(host.has(backup) == wanted.backup, "whether there is a backup");
  if (wanted.backup) requireEqual(host.bytesOf(backup), input.text, "the backup");
  return 0;
}
