#include "desktop/workspace/frm_file_io.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/text_roles.h"
#include "toolkit/refusal.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStorageInfo>
#include <QVBoxLayout>

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

QLineEdit* MakeShownText(QWidget* parent, const char* name)
{
  auto* text = new QLineEdit(parent);
  text->setObjectName(name);
  text->setReadOnly(true);
  return text;
}

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
    : ChildWindow(program, parent,
                  {Name, "Default Text Editor & File Input Path Specifications", {1000, 750}, "hdoc17", {}}),
      form_(LoadFileIoForm(program.State))
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  layout->addWidget(MakeEditorPart());
  layout->addWidget(MakePathPart(), 1);
  layout->addWidget(MakePrinterPart());

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(HelpButton("cmdHelp"));
  buttons->addStretch();
  QPushButton* cancel = MakeButton(this, "cmdCancel", "&Cancel", "");
  QPushButton* accept = MakeButton(this, "cmdOK", "&OK", "");
  accept->setDefault(true);
  buttons->addWidget(cancel);
  buttons->addWidget(accept);
  layout->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, [this] { WayOut(); });
  connect(accept, &QPushButton::clicked, this, [this] {
    SaveTEandFIOinfo(State(), Shared().Ask());
    Unload();
  });
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
  auto* frame = new QGroupBox("Text editor", this);
  auto* column = new QVBoxLayout(frame);
  editor_ = MakeShownText(frame, "txtEditor");
  QPushButton* browse = MakeButton(frame, "cmdBrowse", "&Browse", "");
  column->addWidget(MakeFieldLabel(frame, "Label1", "Default text &editor used by VELN:", editor_));
  auto* line = new QHBoxLayout;
  line->addWidget(editor_, 1);
  line->addWidget(browse);
  column->addLayout(line);
  connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
  return frame;
}

QGroupBox* frmFileIO::MakePathPart()
{
  auto* frame = new QGroupBox("Raw survey files", this);
  auto* column = new QVBoxLayout(frame);
  inputPath_ = MakeShownText(frame, "txtIOpath");
  QLabel* caption = MakeFieldLabel(
      frame, "Label2", "Default i&nput sub-directory (for all raw input survey data files):", inputPath_);
  column->addWidget(caption);
  column->addWidget(inputPath_);
  drives_ = new QComboBox(frame);
  drives_->setObjectName("Drive1");
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    if (QFileInfo(volume.rootPath()).isDir()) {  // a single file can be a mount, too
      drives_->addItem(volume.rootPath());
    }
  }
  directories_ = new DirectoryList(frame);
  directories_->setObjectName("Dir1");
  auto* choice = new QFormLayout;
  choice->addRow(MakeFieldLabel(frame, "Label3", "Select Dri&ve:", drives_), drives_);
  choice->addRow(MakeFieldLabel(frame, "Label4", "Select &sub-directory path:", directories_), directories_);
  column->addLayout(choice, 1);
  connect(drives_, &QComboBox::textActivated, this, [this](const QString& drive) { MoveTo(drive); });
  connect(directories_, &QListWidget::itemActivated, this,
          [this](const QListWidgetItem* item) { MoveTo(QDir::cleanPath(directory_ + "/" + item->text())); });
  return frame;
}

QGroupBox* frmFileIO::MakePrinterPart()
{
  constexpr std::array<const char*, 3> Names = {"opt300", "opt600", "opt1200"};
  constexpr std::array<const char*, 3> Captions = {"300 &DPI", "600 D&PI", "1200 DP&I"};
  auto* frame = new QGroupBox("Printer", this);
  auto* column = new QVBoxLayout(frame);
  column->addWidget(
      MakeText(frame, "Label5", "Dot per Inch (DPI) resolution of your current, default printer:"));
  auto* line = new QHBoxLayout;
  for (std::size_t i = 0; i < Factors.size(); ++i) {
    auto* option = new QRadioButton(Captions.at(i), frame);
    option->setObjectName(Names.at(i));
    option->setAccessibleName(WithoutKey(Captions.at(i)));
    printers_.at(i) = option;
    line->addWidget(option);
    connect(option, &QRadioButton::clicked, this, [this, i] {
      ChoosePrinterDpi(form_, State(), Factors.at(i));
      Mirror();
    });
  }
  line->addStretch();
  column->addLayout(line);
  return frame;
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
    const QStringList names = SubDirectories(path);
    directory_ = path;
    directories_->clear();
    directories_->addItems(names);
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
    const bool selected = form_.SelectedFactor == Factors.at(i);
    ShowOption(*printers_.at(i), selected);
    SetRole(*printers_.at(i), selected ? TextRole::Chosen : TextRole::Normal);
  }
}

}  // namespace veln
