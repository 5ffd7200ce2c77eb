#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int count, char** arguments) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // A home of this process alone: a tool may leave a file in the current folder, the history is
  // kept in the operator's, and tests run side by side.
  const QTemporaryDir home;
  if (!home.isValid() || !QDir::setCurrent(home.path())) return 1;
  for (const char* name : {"XDG_STATE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
    qputenv(name, home.path().toLocal8Bit());
  }
  testing::InitGoogleTest(&count, arguments);
  QApplication application(count, arguments);
  return RUN_ALL_TESTS();
}
