#include "desktop/workspace/frm_file_io.h"

#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/fields.h"
#include "desktop/parts/layout.h"
#include "toolkit/refusal.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QStorageInfo>

#include <system_error>

namespace veln {

namespace {

constexpr std::array<int, 3> Factors = {1, 2, 4};

/// A list in which Enter opens an entry and nothing more; it does not reach the window's main button.
class DirectoryList : public QListWidget {
 public:
  using QListWidget::QListWidget;

 protected:
  void keyPressEvent(QKeyEvent* event) override
  {
    QListWidget::keyPressEvent(event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      event->accept();
    }
  }
};

/// The whole text is in the tool-tip, too: a long path does not fit into the line.
void ShowPath(QLineEdit& line, const QString& text)
{
  line.setText(text);
  line.setToolTip(text);
}

/// The nearest directory that exists, from a path upward.
QString NearestDirectory(const QString& path)
{
  QDir directory(path.isEmpty() ? "/" : path);
  while (!directory.exists() && !directory.isRoot()) {
    directory.setPath(QDir::cleanPath(directory.absolutePath() + "/.."));
  }
  return directory.absolutePath();
}

/// The sub-directories of a directory. Throws Refusal with the system's text.
QStringList SubDirectories(const QString& path)
{
  std::error_code failure;
  const std::filesystem::directory_iterator entries(FromQt(path), failure);
  if (failure) {
    throw Refusal(FromQt(path) + "\ncould not be read: " + failure.message());
  }
  QStringList names = QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
  if (!QDir(path).isRoot()) {
    names.prepend("..");
  }
  return names;
}

}  // namespace

frmFileIO::frmFileIO(Program& program, QWidget* parent)
    : FormWindow(program, parent, {Name, "Default Text Editor & File Input Path Specifications", "hdoc17"},
                 LoadFileIoForm(program.State))
{
  SetColumn(*this, {MakeEditorPart(),
                    {MakePathPart(), 1},
                    MakePrinterPart(),
                    ButtonRow({HelpButton("cmdHelp"), MakeButton(this, "cmdCancel", "&Cancel", "", Leaves()),
                               MakeButton(this, "cmdOK", "&OK", "", [this] {
                                 SaveTEandFIOinfo(State(), Shared().Ask());
                                 Unload();
                               })})});
  ListDirectory(NearestDirectory(ToQt(program.State.InputFilePath)));
  Mirror();
}

void frmFileIO::WayOut()
{
  RestoreSettings(form_, State(), Shared().Ask());
  Unload();
}

QGroupBox* frmFileIO::MakeEditorPart()
{
  editor_ = MakeShownText(this, "txtEditor");
  QPushButton* browse = MakeButton(this, "cmdBrowse", "&Browse", "", [this] { Browse(); });
  return Frame(this, "", "Text editor",
               Column({MakeFieldLabel(this, "Label1", "Default text &editor used by VELN:", editor_),
                       Row({{editor_, 1}, browse})}));
}

QGroupBox* frmFileIO::MakePathPart()
{
  inputPath_ = MakeShownText(this, "txtIOpath");
  drives_ = new QComboBox(this);
  drives_->setObjectName("Drive1");
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    if (QFileInfo(volume.rootPath()).isDir()) {  // a single file can be a mount, too
      drives_->addItem(volume.rootPath());
    }
  }
  directories_ = new DirectoryList(this);
  directories_->setObjectName("Dir1");
  connect(drives_, &QComboBox::textActivated, this, [this](const QString& drive) { MoveTo(drive); });
  connect(directories_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
    MoveTo(QDir::cleanPath(directory_ + "/" + subDirectories_.at(directories_->row(item))));
  });
  auto* choice = new QFormLayout;
  choice->addRow(MakeFieldLabel(this, "Label3", "Select Dri&ve:", drives_), drives_);
  choice->addRow(MakeFieldLabel(this, "Label4", "Select &sub-directory path:", directories_), directories_);
  return Frame(this, "", "Raw survey files",
               Column({MakeFieldLabel(
                           this, "Label2",
                           "Default i&nput sub-directory (for all raw input survey data files):", inputPath_),
                       inputPath_,
                       {choice, 1}}));
}

QGroupBox* frmFileIO::MakePrinterPart()
{
  const auto makeOption = [this](const char* name, const QString& caption, int factor) {
    return MakeOption(this, name, caption, "", [this, factor] {
      ChoosePrinterDpi(form_, State(), factor);
      Mirror();
    });
  };
  printers_ = {makeOption("opt300", "300 &DPI", Factors[0]), makeOption("opt600", "600 D&PI", Factors[1]),
               makeOption("opt1200", "1200 DP&I", Factors[2])};
  return Frame(
      this, "", "Printer",
      Column({MakeText(this, "Label5", "Dot per Inch (DPI) resolution of your current, default printer:"),
              Row({printers_[0], printers_[1], printers_[2], LayoutItem::Rest()})}));
}

void frmFileIO::Browse()
{
  FileQuestion question{
      "", {{"Text Editor Programs (*.exe)", "*.exe"}}, std::filesystem::current_path(), "", true};
#ifndef _WIN32
  question.Filter.insert(question.Filter.begin(), {"All files (*)", "*"});  // the first is the one chosen
#endif
  const auto chosen = Shared().Ask().ShowOpen(question);
  BrowseTextEditor(form_, State(), chosen ? std::optional(chosen->string()) : std::nullopt);
  Mirror();
}

bool frmFileIO::ListDirectory(const QString& path)
{
  return Shared().Try([&] {
    subDirectories_ = SubDirectories(path);
    directory_ = path;
    directories_->clear();
    directories_->addItems(subDirectories_);
    directories_->setToolTip(path);
  });
}

void frmFileIO::MoveTo(const QString& path)
{
  if (ListDirectory(path)) {
    State().InputFilePath = FromQt(path);
  }
  Mirror();
}

void frmFileIO::Mirror()
{
  ShowPath(*editor_, ToQt(form_.TxtEditor));
  ShowPath(*inputPath_, ToQt(State().InputFilePath));
  const QString drive = QStorageInfo(directory_).rootPath();
  drives_->setCurrentIndex(drives_->findText(drive));
  for (std::size_t i = 0; i < Factors.size(); ++i) {
    ShowChoice(*printers_.at(i), form_.SelectedFactor == Factors.at(i));
  }
}

}  // namespace veln
