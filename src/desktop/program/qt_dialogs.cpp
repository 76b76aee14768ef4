#include "desktop/program/qt_dialogs.h"

#include "desktop/parts/controls.h"
#include "toolkit/editor_command.h"

#include <QApplication>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>

namespace veln {

namespace {

QMessageBox::StandardButton ShowBox(QMessageBox::Icon icon, const std::string& text,
                                    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton byEnter)
{
  QMessageBox box(icon, ProgramTitle, ToQt(text), buttons, QApplication::activeWindow());
  box.setObjectName("MsgBox");
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(byEnter);
  const bool busy = QGuiApplication::overrideCursor() != nullptr;
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::ArrowCursor);  // while the user is asked, nothing works on
  }
  const int pressed = box.exec();
  if (busy) {
    QGuiApplication::restoreOverrideCursor();
  }
  return static_cast<QMessageBox::StandardButton>(pressed);
}

}  // namespace

void QtDialogs::Inform(const std::string& text)
{
  ShowBox(QMessageBox::Information, text, QMessageBox::Ok, QMessageBox::Ok);
}

void QtDialogs::Warn(const std::string& text)
{
  ShowBox(QMessageBox::Warning, text, QMessageBox::Ok, QMessageBox::Ok);
}

/// Enter loses nothing.
bool QtDialogs::Ask(Question question, const std::string& text)
{
  const auto byEnter = YesLoses(question) ? QMessageBox::No : QMessageBox::Yes;
  return ShowBox(QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No, byEnter) ==
         QMessageBox::Yes;
}

void QtDialogs::Beep()
{
  QApplication::beep();
}

std::optional<std::filesystem::path> QtDialogs::ShowOpen(const FileQuestion& question)
{
  QFileDialog dialog(QApplication::activeWindow(), ToQt(question.DialogTitle),
                     ToQt(question.InitDir.string()));
  dialog.setObjectName("CommonDialog");
  dialog.setFileMode(question.MustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  QStringList filters;
  for (const FileFilter& filter : question.Filter) {
    filters << ToQt(filter.Text + " (" + filter.Pattern + ")");
  }
  dialog.setNameFilters(filters);
  dialog.selectFile(ToQt(question.FileName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    return std::nullopt;
  }
  return std::filesystem::path(FromQt(dialog.selectedFiles().constFirst()));
}

void QtDialogs::Shell(const std::vector<std::string>& command)
{
  StartProgram(command);
}

}  // namespace veln
