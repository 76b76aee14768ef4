#include "desktop/survey/frm_structure.h"

#include "desktop/parts/busy_pointer.h"
#include "desktop/parts/character_filter.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/fields.h"
#include "desktop/parts/layout.h"
#include "desktop/survey/record_preview_table.h"
#include "toolkit/number_text.h"

#include <QDragEnterEvent>
#include <QGridLayout>
#include <QMimeData>
#include <QTableWidget>
#include <QUrl>

namespace veln {

namespace {

/// The longest line of the window, which tells how wide it is at least.
QString LongestLine()
{
  StructureForm transect;
  transect.Transect = true;
  return ToQt(transect.Label9());
}

/// A given text of several lines with the room that it needs at the width of the longest line, or at any
/// larger one.
QLabel* MakeParagraph(QWidget* parent, const char* name, const QString& text)
{
  QLabel* label = MakeText(parent, name, text);
  const int width = label->fontMetrics().horizontalAdvance(LongestLine());
  label->setMinimumSize(width, label->heightForWidth(width));
  return label;
}

}  // namespace

frmStructure::frmStructure(Program& program, QWidget* parent)
    : FormWindow(
          program, parent,
          {Name, "File Structure and Import", "hdoc05", MenuEntry::mnuImport, nullptr, QPoint(750, 250)}, {})
{
  setAcceptDrops(true);
  SetColumn(
      *this,
      {{MakeFilePart(), 1},
       MakeColumnPart(),
       MakeLabelPart(),
       MakeProgress(),
       ButtonRow(
           {HelpButton("Chelp"),
            MakeButton(this, "Command2", "&Cancel", " exit without importing any data ", Leaves()),
            MakeButton(this, "Command1", "&OK", " open file and import the data columns specified above ",
                       [this] { Import(); })})});
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
  constexpr int LongestPath = 32767;
  file_ = MakeEdit(this, "Text3",
                   " enter path and filename info here, or use the Browse button to browse for input file ",
                   LongestPath, [this](const std::string& text) {
                     form_.Text3 = text;
                     ShowPreview();
                   });
  file_->setAcceptDrops(false);  // the window takes a dropped file
  QPushButton* browse =
      MakeButton(this, "Command3", "&Browse", " open up the file browser window ", [this] { Browse(); });
  preview_ = MakePreviewTable(this);
  previewNote_ = MakeText(this, "previewNote", "");
  previewNote_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  previewNote_->setMinimumHeight(2 * previewNote_->fontMetrics().lineSpacing());
  return Frame(
      this, "", "1. File",
      Column({Row({MakeFieldLabel(this, "Label11", "&Path \\ Filename:", file_), {file_, 1}, browse}),
              {preview_, 1},
              previewNote_}));
}

QGroupBox* frmStructure::MakeColumnPart()
{
  siteId_ = MakeCheck(this, "Check1", "numeric site &identification code",
                      " indicates if sample site ID column is present in input file ",
                      Keeps(&StructureForm::Check1));
  secondSignal_ = MakeCheck(this, "Check2", "s2: (2nd &signal column)",
                            " indicates if a 2nd column of EM signal data is present in input file ",
                            Keeps(&StructureForm::Check2));
  rowColumn_ = MakeLine(this, "Label5", "REQUIRED:  row number");
  KeepRoom(*rowColumn_);
  order_ = MakeLine(this, "Label9", "");
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(LargeGap);
  grid->addWidget(
      MakeParagraph(
          this, "Label1",
          "The site identification and/or s2 siganl columns represent optional data columns which can be "
          "included in an import grid or transect data file.  Please indicate if either or both of these "
          "columns are present in your file by checking the appropriate boxes.  "),
      0, 0, 1, 3);
  grid->addWidget(siteId_, 1, 0);
  grid->addWidget(secondSignal_, 2, 0);
  grid->addWidget(MakeLine(this, "Label2", "REQUIRED:  x-coordinate"), 1, 1);
  grid->addWidget(MakeLine(this, "Label3", "REQUIRED:  y-coordinate"), 2, 1);
  grid->addWidget(MakeLine(this, "Label4", "REQUIRED:  s1 (1st signal column)"), 1, 2);
  grid->addWidget(rowColumn_, 2, 2);
  grid->addWidget(order_, 3, 0, 1, 3);
  return Frame(this, "", "2. Columns", grid);
}

QGroupBox* frmStructure::MakeLabelPart()
{
  label1_ = MakeEdit(this, "Text1", " enter s1 signal label here ", LongestLabel,
                     [this](const std::string& text) { form_.Text1 = text; });
  label2_ = MakeEdit(this, "Text2", " enter s2 signal label here ", LongestLabel,
                     [this](const std::string& text) { form_.Text2 = text; });
  for (QLineEdit* label : {label1_, label2_}) {
    label->setAcceptDrops(false);
    DropCharacters(*label, IsNoLabelCharacter, Shared().Ask());
  }
  label2Caption_ = MakeFieldLabel(this, "Label8", "s2 Lab&el:", label2_);
  KeepRoom(*label2Caption_);
  KeepRoom(*label2_);
  auto* grid = new QGridLayout;
  grid->addWidget(MakeText(this, "Label6",
                           "Please enter the appropriate labels and units for your signal data column(s)."),
                  0, 0, 1, 4);
  grid->addWidget(MakeFieldLabel(this, "Label7", "s1 &Label:", label1_), 1, 0);
  grid->addWidget(label1_, 1, 1);
  grid->addWidget(label2Caption_, 2, 0);
  grid->addWidget(label2_, 2, 1);
  AddUnits(*grid);
  AddTransform(*grid);
  return Frame(this, "", "3. Labels and units", grid);
}

void frmStructure::AddUnits(QGridLayout& grid)
{
  const auto change = [this](bool deciSiemens) {
    ChooseUnits(form_, deciSiemens);
    Mirror();
  };
  milli_ = MakeCheck(this, "Check3", "&mS/m", " indicates data units are in mS/m ",
                     [change](bool on) { change(!on); });
  deci_ = MakeCheck(this, "Check4", "&dS/m", " indicates data units are in dS/m or mS/cm ", change);
  grid.addWidget(milli_, 1, 2);
  grid.addWidget(deci_, 2, 2);
}

void frmStructure::AddTransform(QGridLayout& grid)
{
  logYes_ =
      MakeOption(this, "Option1", "&Yes", " apply natural log transform ", Does(ChooseLogTransform, true));
  logNo_ = MakeOption(this, "Option2", "&No", " do not apply natural log transform ",
                      Does(ChooseLogTransform, false));
  grid.addLayout(Row({MakeLine(this, "Label10", "Perform natural log transform on input signal data?"),
                      logYes_, logNo_, LayoutItem::Rest()}),
                 3, 0, 1, 4);
  grid.addWidget(
      MakeParagraph(
          this, "Label16",
          "(Note: select Yes if you are performing a soil salinity survey, and you expect that          "
          "        at least 10% of the field exceeds 4 dS/m.)"),
      4, 0, 1, 4);
}

QLayout* frmStructure::MakeProgress()
{
  const auto makeLine = [this](const char* name, const QString& text) {
    QLabel* label = MakeLine(this, name, text);
    KeepRoom(*label);
    return label;
  };
  const auto makeCounter = [this](const char* name, const QLabel& caption) {
    QLabel* label = MakeValueLabel(this, name, caption.text());
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance("30000 ") + LargeGap);
    KeepRoom(*label);
    return label;
  };
  scanning_ = makeLine("Label12", "Scanning Line # ");
  scanned_ = makeCounter("Label13", *scanning_);
  importing_ = makeLine("Label14", "Importing Line #");
  imported_ = makeCounter("Label15", *importing_);
  HideProgress();
  return Row({scanning_, scanned_, importing_, imported_, LayoutItem::Rest()});
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
  SetShown({scanning_, scanned_, importing_, imported_}, false);
}

void frmStructure::Mirror()
{
  ShowChoice(*siteId_, form_.Check1, TextRole::Off);
  ShowChoice(*secondSignal_, form_.Check2, TextRole::Off);
  ShowChoice(*milli_, !form_.Check4);
  ShowChoice(*deci_, form_.Check4);
  ShowChoice(*logYes_, form_.Option1);
  ShowChoice(*logNo_, !form_.Option1);
  SetShown({label2Caption_, label2_}, form_.Check2);
  rowColumn_->setVisible(form_.Transect);
  order_->setText(ToQt(form_.Label9()));
  ShowText(*label1_, form_.Text1);
  ShowText(*label2_, form_.Text2);
  ShowPreview();
}

void frmStructure::ShowPreview()
{
  previewNote_->setText(FillPreviewTable(*preview_, form_.Request()));
}

}  // namespace veln
