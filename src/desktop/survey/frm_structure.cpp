#include "desktop/survey/frm_structure.h"

#include "desktop/parts/busy_pointer.h"
#include "desktop/parts/character_filter.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/text_roles.h"
#include "desktop/survey/record_preview_table.h"
#include "toolkit/number_text.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace veln {

namespace {

QLineEdit* MakeEdit(QWidget* parent, const char* name, const QString& toolTip)
{
  auto* edit = new QLineEdit(parent);
  edit->setObjectName(name);
  edit->setToolTip(toolTip);
  return edit;
}

/// The longest line of the window, which tells how wide it is at least.
QString LongestLine()
{
  StructureForm transect;
  transect.Transect = true;
  return ToQt(transect.Label9());
}

/// A given text on one line.
QLabel* MakeLine(QWidget* parent, const char* name, const QString& text)
{
  QLabel* label = MakeText(parent, name, text);
  label->setWordWrap(false);
  return label;
}

/// A given text of several lines with the room that it needs at the width of `widest`, or at any larger one.
QLabel* MakeParagraph(QWidget* parent, const char* name, const QString& text, const QString& widest)
{
  QLabel* label = MakeText(parent, name, text);
  const int width = label->fontMetrics().horizontalAdvance(widest);
  label->setMinimumSize(width, label->heightForWidth(width));
  return label;
}

QLabel* MakeProgressLabel(QWidget* parent, const char* name, const QString& text)
{
  QLabel* label = MakeLine(parent, name, text);
  label->hide();
  KeepRoom(*label);
  return label;
}

QLabel* MakeCounter(QWidget* parent, const char* name, const QString& caption)
{
  QLabel* label = MakeValueLabel(parent, name, caption);
  label->setMinimumWidth(label->fontMetrics().horizontalAdvance("30000 ") + LargeGap);
  label->hide();
  KeepRoom(*label);
  return label;
}

}  // namespace

frmStructure::frmStructure(Program& program, QWidget* parent)
    : ChildWindow(program, parent,
                  {Name, "File Structure and Import", {750, 250}, "hdoc05", MenuEntry::mnuImport})
{
  setAcceptDrops(true);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  layout->addWidget(MakeFilePart(), 1);
  layout->addWidget(MakeColumnPart());
  layout->addWidget(MakeLabelPart());
  layout->addLayout(MakeButtons());
  ChooseLogTransform(form_, false);
  Mirror();
  file_->setFocus();
}

void frmStructure::SetSurveyType(bool transect)
{
  form_.Transect = transect;
  Mirror();
}

void frmStructure::SetFileName(const QString& fileName)
{
  file_->setText(fileName);
}

void frmStructure::dragEnterEvent(QDragEnterEvent* event)
{
  const QList<QUrl> urls = event->mimeData()->urls();
  if (!urls.isEmpty() && urls.constFirst().isLocalFile()) {
    event->acceptProposedAction();
  }
}

void frmStructure::dropEvent(QDropEvent* event)
{
  SetFileName(event->mimeData()->urls().constFirst().toLocalFile());
  event->acceptProposedAction();
}

void frmStructure::changeEvent(QEvent* event)
{
  ChildWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && previewNote_ != nullptr) {
    ShowPreview();
  }
}

QGroupBox* frmStructure::MakeFilePart()
{
  auto* frame = new QGroupBox("1. File", this);
  auto* grid = new QGridLayout(frame);
  file_ = MakeEdit(frame, "Text3",
                   " enter path and filename info here, or use the Browse button to browse for input file ");
  file_->setAcceptDrops(false);  // the window takes a dropped file
  QPushButton* browse = MakeButton(frame, "Command3", "&Browse", " open up the file browser window ");
  grid->addWidget(MakeFieldLabel(frame, "Label11", "&Path \\ Filename:", file_), 0, 0);
  grid->addWidget(file_, 0, 1);
  grid->addWidget(browse, 0, 2);
  preview_ = MakePreviewTable(frame);
  grid->addWidget(preview_, 1, 0, 1, 3);
  previewNote_ = MakeText(frame, "previewNote", "");
  previewNote_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  previewNote_->setMinimumHeight(2 * previewNote_->fontMetrics().lineSpacing());
  grid->addWidget(previewNote_, 2, 0, 1, 3);
  grid->setRowStretch(1, 1);
  connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
  connect(file_, &QLineEdit::textChanged, this, [this](const QString& text) {
    form_.Text3 = FromQt(text);
    ShowPreview();
  });
  return frame;
}

QGroupBox* frmStructure::MakeColumnPart()
{
  auto* frame = new QGroupBox("2. Columns", this);
  auto* grid = new QGridLayout(frame);
  grid->setHorizontalSpacing(LargeGap);
  grid->addWidget(
      MakeParagraph(
          frame, "Label1",
          "The site identification and/or s2 siganl columns represent optional data columns which can be "
          "included in an import grid or transect data file.  Please indicate if either or both of these "
          "columns are present in your file by checking the appropriate boxes.  ",
          LongestLine()),
      0, 0, 1, 3);
  siteId_ = MakeCheck(frame, "Check1", "numeric site &identification code",
                      " indicates if sample site ID column is present in input file ");
  secondSignal_ = MakeCheck(frame, "Check2", "s2: (2nd &signal column)",
                            " indicates if a 2nd column of EM signal data is present in input file ");
  grid->addWidget(siteId_, 1, 0);
  grid->addWidget(secondSignal_, 2, 0);
  grid->addWidget(MakeLine(frame, "Label2", "REQUIRED:  x-coordinate"), 1, 1);
  grid->addWidget(MakeLine(frame, "Label3", "REQUIRED:  y-coordinate"), 2, 1);
  grid->addWidget(MakeLine(frame, "Label4", "REQUIRED:  s1 (1st signal column)"), 1, 2);
  rowColumn_ = MakeLine(frame, "Label5", "REQUIRED:  row number");
  KeepRoom(*rowColumn_);
  grid->addWidget(rowColumn_, 2, 2);
  order_ = MakeLine(frame, "Label9", "");
  grid->addWidget(order_, 3, 0, 1, 3);
  connect(siteId_, &QCheckBox::toggled, this, [this](bool on) {
    form_.Check1 = on;
    Mirror();
  });
  connect(secondSignal_, &QCheckBox::toggled, this, [this](bool on) {
    form_.Check2 = on;
    Mirror();
  });
  return frame;
}

QGroupBox* frmStructure::MakeLabelPart()
{
  auto* frame = new QGroupBox("3. Labels and units", this);
  auto* grid = new QGridLayout(frame);
  grid->addWidget(MakeText(frame, "Label6",
                           "Please enter the appropriate labels and units for your signal data column(s)."),
                  0, 0, 1, 4);
  label1_ = MakeEdit(frame, "Text1", " enter s1 signal label here ");
  label1_->setMaxLength(LongestLabel);
  label2_ = MakeEdit(frame, "Text2", " enter s2 signal label here ");
  for (QLineEdit* label : {label1_, label2_}) {
    label->setAcceptDrops(false);
    DropCharacters(*label, IsNoLabelCharacter, Shared().Ask());
  }
  grid->addWidget(MakeFieldLabel(frame, "Label7", "s1 &Label:", label1_), 1, 0);
  grid->addWidget(label1_, 1, 1);
  label2Caption_ = MakeFieldLabel(frame, "Label8", "s2 Lab&el:", label2_);
  grid->addWidget(label2Caption_, 2, 0);
  grid->addWidget(label2_, 2, 1);
  KeepRoom(*label2Caption_);
  KeepRoom(*label2_);
  AddUnits(*grid, frame);
  AddTransform(*grid, frame);
  connect(label1_, &QLineEdit::textChanged, this,
          [this](const QString& text) { form_.Text1 = FromQt(text); });
  connect(label2_, &QLineEdit::textChanged, this,
          [this](const QString& text) { form_.Text2 = FromQt(text); });
  return frame;
}

void frmStructure::AddUnits(QGridLayout& grid, QWidget* frame)
{
  milli_ = MakeCheck(frame, "Check3", "&mS/m", " indicates data units are in mS/m ");
  deci_ = MakeCheck(frame, "Check4", "&dS/m", " indicates data units are in dS/m or mS/cm ");
  grid.addWidget(milli_, 1, 2);
  grid.addWidget(deci_, 2, 2);
  for (const bool deciBox : {false, true}) {
    connect(deciBox ? deci_ : milli_, &QCheckBox::toggled, this, [this, deciBox](bool on) {
      ChooseUnits(form_, deciBox == on);
      Mirror();
    });
  }
}

void frmStructure::AddTransform(QGridLayout& grid, QWidget* frame)
{
  auto* choice = new QWidget(frame);
  auto* line = new QHBoxLayout(choice);
  line->setContentsMargins(0, 0, 0, 0);
  logYes_ = MakeOption(choice, "Option1", "&Yes", " apply natural log transform ");
  logNo_ = MakeOption(choice, "Option2", "&No", " do not apply natural log transform ");
  line->addWidget(MakeLine(choice, "Label10", "Perform natural log transform on input signal data?"));
  line->addWidget(logYes_);
  line->addWidget(logNo_);
  line->addStretch();
  grid.addWidget(choice, 3, 0, 1, 4);
  grid.addWidget(
      MakeParagraph(
          frame, "Label16",
          "(Note: select Yes if you are performing a soil salinity survey, and you expect that          "
          "        at least 10% of the field exceeds 4 dS/m.)",
          LongestLine()),
      4, 0, 1, 4);
  for (const bool yes : {true, false}) {
    connect(yes ? logYes_ : logNo_, &QRadioButton::clicked, this, [this, yes] {
      ChooseLogTransform(form_, yes);
      Mirror();
    });
  }
}

QLayout* frmStructure::MakeButtons()
{
  auto* bottom = new QVBoxLayout;
  auto* progress = new QHBoxLayout;
  scanning_ = MakeProgressLabel(this, "Label12", "Scanning Line # ");
  scanned_ = MakeCounter(this, "Label13", scanning_->text());
  importing_ = MakeProgressLabel(this, "Label14", "Importing Line #");
  imported_ = MakeCounter(this, "Label15", importing_->text());
  for (QLabel* label : {scanning_, scanned_, importing_, imported_}) {
    progress->addWidget(label);
  }
  progress->addStretch();
  bottom->addLayout(progress);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(HelpButton("Chelp"));
  buttons->addStretch();
  QPushButton* cancel = MakeButton(this, "Command2", "&Cancel", " exit without importing any data ");
  QPushButton* accept =
      MakeButton(this, "Command1", "&OK", " open file and import the data columns specified above ");
  accept->setDefault(true);
  buttons->addWidget(cancel);
  buttons->addWidget(accept);
  bottom->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, [this] { Unload(); });
  connect(accept, &QPushButton::clicked, this, [this] { Import(); });
  return bottom;
}

void frmStructure::Browse()
{
  const FileQuestion question{
      "File Browse", {{"all input file types (*.*)", "*"}}, State().InputFilePath, "", true};
  const auto chosen = Shared().Ask().ShowOpen(question);
  SetFileName(chosen ? ToQt(chosen->string()) : QString());
}

void frmStructure::Import()
{
  Program& program = Shared();
  HideProgress();
  const bool imported = program.Try([this, &program] {
    const BusyPointer busy;
    ImportStructure(form_, State(), program.Ask(),
                    [this](ImportPass pass, int count) { ShowProgress(pass, count); });
  });
  if (imported) {
    Unload();
    program.Changed();
  }
}

void frmStructure::ShowProgress(ImportPass pass, int count)
{
  const bool scan = pass == ImportPass::Scanning;
  QLabel* caption = scan ? scanning_ : importing_;
  QLabel* counter = scan ? scanned_ : imported_;
  if (!caption->isVisible()) {
    caption->show();
    caption->repaint();
    counter->show();
  }
  ShowValue(*counter, ToQt(GeneralForm(count)));
  counter->repaint();
}

void frmStructure::HideProgress()
{
  for (QLabel* label : {scanning_, scanned_, importing_, imported_}) {
    label->hide();
  }
}

void frmStructure::Mirror()
{
  ShowChoice(*siteId_, form_.Check1, TextRole::Off);
  ShowChoice(*secondSignal_, form_.Check2, TextRole::Off);
  ShowChoice(*milli_, !form_.Check4);
  ShowChoice(*deci_, form_.Check4);
  ShowChoice(*logYes_, form_.Option1);
  ShowChoice(*logNo_, !form_.Option1);
  label2Caption_->setVisible(form_.Check2);
  label2_->setVisible(form_.Check2);
  rowColumn_->setVisible(form_.Transect);
  order_->setText(ToQt(form_.Label9()));
  for (auto [edit, text] : {std::pair{label1_, &form_.Text1}, std::pair{label2_, &form_.Text2}}) {
    const QSignalBlocker quiet(edit);
    if (FromQt(edit->text()) != *text) {
      edit->setText(ToQt(*text));
    }
  }
  ShowPreview();
}

void frmStructure::ShowPreview()
{
  previewNote_->setText(FillPreviewTable(*preview_, form_.Request()));
}

}  // namespace veln
