#include "desktop/program/application.h"

#include <gmock/gmock.h>

// One application for all tests of the program, without a screen unless the caller names one.
int main(int argc, char** argv)
{
  testing::InitGoogleMock(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  const veln::Application application(argc, argv);
  QApplication::setOrganizationName("Norvane Laboratory");
  QApplication::setApplicationName("VELN-QTRD tests");
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
