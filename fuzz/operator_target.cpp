// Random acts at all that is in reach, on figures of all degrees of damage. The input's first byte
// is how many bytes of damage follow, the two behind them say at which operation of the host the
// process dies in a second run, the rest is the operator. Whatever he does: no crash and no hang;
// and wherever the process dies, each of his files stands as some act had left it.

#include "headless/commands.h"
#include "input.h"
#include "random_operator.h"
#include "small_world.h"
#include "support/faulty_host.h"
#include "text/history.h"

#include <map>
#include <optional>
#include <set>
#include <sstream>

namespace {

using namespace norvik;
using namespace norvik::fuzz;

constexpr std::size_t kMostActs = 60;

/// A file's versions; none where it was not there.
using Versions = std::map<std::string, std::set<std::optional<std::string>>>;

std::map<std::string, std::string> userFiles(const MemoryHost& host) {
  std::map<std::string, std::string> files;
  for (const auto& name : host.names()) {
    if (name.starts_with("/c/") && !name.starts_with("/c/Norvik/"))
      files[name] = host.bytesOf(name);
  }
  return files;
}

/// A run of the program over a small world.
class Run {
 public:
  explicit Run(std::span<const std::uint8_t> damage) : paths(makeSmallWorld(memory, damage)) {
    memory.addFolder("/history");
    history.emplace(failing, "/history");
    disk.emplace(failing);
    disk->mount('C', "/c");
    disk->changeFolder("C:\\");
    disk->setHistory(&*history);
    settings.set("Startup", "PLoc", "C:\\Poser\\");
    bench.emplace(front, *disk, settings, "C:\\Norvik", "");
    commands.emplace(*bench, front, transcript, outcome, failing);
    front.setUnload([this](front::Form& form) {
      bench->session().deliver(form.name(), [&] { bench->session().unload(form); });
    });
  }

  void carryOut(const std::string& line) {
    if (line == kForgetAnswers) return forgetAnswers();
    commands->run(headless::ScriptLine(0, line));
    events.str({});
  }

  void forgetAnswers() {
    using Kind = headless::DialogAnswer::Kind;
    while (front.answers().takeBox()) {
    }
    for (const Kind kind : {Kind::file, Kind::colour, Kind::print}) {
      while (front.answers().takeDialog(kind)) {
      }
    }
  }

  MemoryHost memory;
  std::vector<std::string> paths;
  tests::FaultyHost failing{memory};
  std::ostringstream events;
  headless::Transcript transcript{events};
  headless::Outcome outcome;
  headless::ScriptFrontEnd front{transcript, outcome, {.clock = "2002-03-04 05:06:07"}};
  front::Settings settings;
  std::optional<text::History> history;
  std::optional<text::Disk> disk;
  std::optional<workbench::Workbench> bench;
  std::optional<headless::Commands> commands;
};

/// The acts of the operator one after the other, those in modal forms too.
template <typename Next>
void play(Run& run, Next next) {
  run.front.setStep(next);
  while (!run.front.ended() && next()) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::span<const std::uint8_t> bytes(data, size);
  if (bytes.size() < 4) return 0;
  const std::size_t damageSize = std::min<std::size_t>(bytes[0] % 16, bytes.size() - 3);
  const auto damage = bytes.subspan(1, damageSize);
  const std::size_t deathByte = bytes[1 + damageSize] * 256U + bytes[2 + damageSize];
  bytes = bytes.subspan(3 + damageSize);

  std::vector<std::string> script;
  Versions versions;
  Run first(damage);
  const auto note = [&] {
    auto files = userFiles(first.memory);
    for (auto& [name, seen] : versions) {
      if (!files.contains(name)) seen.insert(std::nullopt);
    }
    for (auto& [name, content] : files) {
      // A file that comes into being may be met on the way there.
      versions[name].insert(std::move(content));
    }
  };
  note();
  const Versions atStart = versions;
  RandomOperator someone(bytes, first.paths);
  std::size_t acts = 0;
  const auto carryOut = [&](const std::string& line) {
    script.push_back(line);
    first.carryOut(line);
  };
  for (const std::string_view line : {"start", "choose C:\\a.cr2", "click MenuFileOpen",
                                      "choose C:\\b.cr2", "click LabelOpenSource"}) {
    carryOut(std::string{line});
    // An operator without a first byte begins at the empty window.
    if (bytes.empty() || bytes[0] % 4 == 0) break;
  }
  play(first, [&] {
    if (someone.done() || acts >= kMostActs) return false;
    ++acts;
    const auto lines = someone.next(first.bench->session(), first.front);
    for (const auto& line : lines) carryOut(line);
    note();
    return !lines.empty();
  });
  note();

  const auto operations = first.failing.operations();
  if (operations == 0 || deathByte == 0) return 0;
  Run second(damage);
  second.failing.setFault(tests::Fault::killed, 1 + deathByte % operations);
  std::size_t line = 0;
  play(second, [&] {
    if (line >= script.size() || second.failing.faultMet()) return false;
    // By value: a form that waits takes the lines that follow.
    const std::string text = script[line++];
    second.carryOut(text);
    return true;
  });
  const auto left = userFiles(second.memory);
  for (const auto& [name, before] : atStart) {
    const auto found = left.find(name);
    const std::optional<std::string> now =
        found == left.end() ? std::nullopt : std::optional(found->second);
    if (versions[name].contains(now)) continue;
    std::string story;
    for (const auto& text : script) story += text + "\n";
    require(false, "the old or the new " + name + " behind\n" + story + "but it holds\n" +
                       now.value_or("(it is gone)"));
  }
  return 0;
}
