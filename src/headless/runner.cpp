#include "headless/runner.h"

#include "headless/commands.h"
#include "text/history.h"
#include "text/safe_replace.h"
#include "workbench/workbench.h"

#include <cstdlib>
#include <filesystem>
#include <memory>

namespace norvik::headless {

namespace {

void mountDrives(text::Disk& disk, const Options& options) {
  disk.mount('Z', "/");
  for (const auto& [letter, folder] : options.drives) disk.mount(letter, folder);
}

void enterCurrentFolder(text::Disk& disk, const Options& options) {
  std::string folder = options.currentFolder;
  if (folder.empty()) {
    const auto host = disk.systemPath(std::filesystem::current_path().string());
    if (!host) throw workbench::BadOption{"no drive holds the current folder: give --cwd"};
    folder = *host;
  }
  workbench::orBadOption("--cwd " + folder, [&] { disk.changeFolder(folder); });
}

std::string userDataFolder() {
  if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data == '/') {
    return std::string{data} + "/norvik";
  }
  const char* home = std::getenv("HOME");
  return std::string{home == nullptr ? "/tmp" : home} + "/.local/share/norvik";
}

std::string programFolder(text::Disk& disk, const Options& options) {
  std::string folder = options.program;
  if (folder.empty() && disk.hasDrive('C')) folder = "C:\\Norvik";
  if (folder.empty()) {
    const auto data = disk.systemPath(userDataFolder());
    if (!data) throw workbench::BadOption{"no drive holds the user's data folder: give --program"};
    folder = *data;
  }
  while (folder.ends_with('\\')) folder.pop_back();
  workbench::orBadOption("--program " + folder, [&] { disk.makeFolders(folder); });
  return folder;
}

/// The store stands from the start, so that an option that cannot be used is told before any work.
front::Settings settingsOf(text::HostOps& host, const Options& options) {
  if (options.settings.empty()) return {};
  const auto file = std::filesystem::absolute(options.settings);
  std::error_code error;
  std::filesystem::create_directories(file.parent_path(), error);
  if (error) throw workbench::BadOption{"--settings " + options.settings + ": " + error.message()};
  front::Settings settings;
  workbench::orBadOption("--settings " + options.settings, [&] {
    if (!std::filesystem::exists(file)) text::replaceContent(host, file.string(), {});
    settings = front::Settings(host, file.string());
  });
  return settings;
}

/// The store, like the settings' one, stands from the start. None if the options name none.
std::unique_ptr<text::History> historyOf(text::HostOps& host, const Options& options) {
  if (options.history.empty()) return nullptr;
  std::error_code error;
  std::filesystem::create_directories(options.history, error);
  const auto folder = std::filesystem::canonical(options.history, error);
  if (!error && !std::filesystem::is_directory(folder, error)) {
    error = std::make_error_code(std::errc::not_a_directory);
  }
  if (error) throw workbench::BadOption{"--history " + options.history + ": " + error.message()};
  return std::make_unique<text::History>(host, folder.string());
}

}  // namespace

ExitCode runScript(const Options& options, text::HostOps& host, std::istream& input,
                   std::ostream& out) {
  text::Disk disk(host);
  mountDrives(disk, options);
  enterCurrentFolder(disk, options);
  const std::string program = programFolder(disk, options);
  front::Settings settings = settingsOf(host, options);
  const std::unique_ptr<text::History> history = historyOf(host, options);
  disk.setHistory(history.get());

  Transcript transcript(out);
  Outcome outcome;
  ScriptFrontEnd frontEnd(transcript, outcome, options.frontEnd);
  workbench::Workbench workbench(frontEnd, disk, settings, program, options.open);
  Commands commands(workbench, frontEnd, transcript, outcome, host);

  Script script(input);
  const auto step = [&] {
    auto line = script.next();
    if (!line) return false;
    commands.run(std::move(*line));
    return true;
  };
  frontEnd.setStep(step);
  front::Session& session = workbench.session();
  frontEnd.setUnload([&session](front::Form& form) {
    session.deliver(form.name(), [&] { session.unload(form); });
  });
  while (!frontEnd.ended() && step()) {
  }
  // A transcript that did not get out must not look like a run that went well.
  out.flush();
  return out ? outcome.exitCode() : kRunnerFailed;
}

}  // namespace norvik::headless
