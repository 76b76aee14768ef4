#include "desktop/program/program.h"
#include "desktop/program/qt_dialogs.h"
#include "desktop/workspace/frm_main.h"
#include "toolkit/clock.h"
#include "workspace/settings.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <filesystem>

int main(int argc, char** argv)
{
  const QApplication application(argc, argv);
  QApplication::setOrganizationName("Norvane Laboratory");
  QApplication::setApplicationName("VELN-QTRD");
  QSettings settings;
  // The toolkit's file dialogs would remember the folders they showed; they forget them with this run.
  const QTemporaryDir forgotten;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, forgotten.path());
  veln::QtDialogs dialogs;
  veln::Program program(dialogs, veln::SystemDateTime, settings);
  program.State.ProgramDir = std::filesystem::current_path();
  veln::ReadTEandFIOinfo(program.State, dialogs);
  veln::frmMain window(program);
  window.show();
  return QApplication::exec();
}
