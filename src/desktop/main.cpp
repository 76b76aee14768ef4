#include "desktop/program/application.h"
#include "desktop/program/program.h"
#include "desktop/program/qt_dialogs.h"
#include "desktop/workspace/frm_main.h"
#include "toolkit/clock.h"
#include "toolkit/output_target.h"
#include "toolkit/program_end.h"
#include "workspace/settings.h"

#include <QSettings>

#include <exception>
#include <iostream>

namespace {

int Run(int argc, char** argv)
{
  veln::Application application(argc, argv);
  QApplication::setOrganizationName("Norvane Laboratory");
  QApplication::setApplicationName("VELN-QTRD");
  QSettings settings;
  // The toolkit's file dialogs would remember the folders they showed. Below a file there is no place to keep
  // that.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QApplication::applicationFilePath());
  veln::QtDialogs dialogs;
  veln::Program program(dialogs, veln::SystemDateTime, settings);
  program.State.ProgramDir = veln::AbsolutePath(".");
  veln::ReadTEandFIOinfo(program.State, dialogs);
  veln::frmMain window(program);
  application.Serve(&program);
  window.show();
  const int status = QApplication::exec();
  application.Serve(nullptr);
  return status;
}

}  // namespace

int main(int argc, char** argv)
{
  veln::OccupyStandardStreams();
  veln::EndInOrderOnSignals();
  try {
    return Run(argc, argv);
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << "\n";
    return 1;
  }
}
