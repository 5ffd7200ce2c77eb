// norvik: the workbench with a window.

#include "desktop/program.h"
#include "desktop/window_asker.h"
#include "front/opening.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <exception>
#include <iostream>

namespace {

namespace desktop = norvik::desktop;
using norvik::text::FileError;

constexpr int kBadOption = 2;
constexpr int kFailed = 4;

int run(int count, char** arguments) {
  QApplication application(count, arguments);
  QApplication::setApplicationName(QStringLiteral("norvik"));
  QApplication::setDesktopFileName(QStringLiteral("org.norvik.Norvik"));
  // The window system has taken its own options out.
  const desktop::Options options = desktop::parseOptions({arguments + 1, arguments + count});
  desktop::WindowAsker asker;
  desktop::Program program(options, asker);
  QTimer::singleShot(0, &application, [&program] { program.start(); });
  return QApplication::exec();
}

bool asksFor(int count, char** arguments, std::string_view option) {
  return std::find(arguments + 1, arguments + count, option) != arguments + count;
}

}  // namespace

int main(int count, char** arguments) {
  // These two need no screen.
  if (asksFor(count, arguments, "--help")) {
    std::cout << desktop::kHelp;
    return 0;
  }
  if (asksFor(count, arguments, "--version")) {
    std::cout << "norvik " << norvik::front::kVersion << '\n';
    return 0;
  }
  // A file beyond the user's limit is an error of a write like others.
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    return run(count, arguments);
  } catch (const norvik::workbench::BadOption& bad) {
    std::cerr << "norvik: " << bad.why << '\n';
    return kBadOption;
  } catch (const FileError& error) {
    std::cerr << "norvik: " << error.text() << '\n';
    return kFailed;
  } catch (const std::exception& error) {
    std::cerr << "norvik: " << error.what() << '\n';
    return kFailed;
  }
}
