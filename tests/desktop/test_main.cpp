#include <QApplication>
#include <gtest/gtest.h>

int main(int count, char** arguments) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&count, arguments);
  QApplication application(count, arguments);
  return RUN_ALL_TESTS();
}
