// What frmSRS is made of: its controls and menus, without their rules.
#include "desktop/design/frm_d_list.h"
#include "desktop/design/frm_parse.h"
#include "desktop/design/frm_srs.h"
#include "desktop/design/site_table.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/drawing_view.h"
#include "desktop/program/help_request.h"
#include "forms/design_table.h"
#include "forms/reduction_form.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

namespace veln {

namespace {

QAction* AddEntry(QMenu& menu, const char* name, const QString& caption)
{
  QAction* action = menu.addAction(caption);
  action->setObjectName(name);
  return action;
}

QMenu* AddSubmenu(QMenu& menu, const char* name, const QString& caption)
{
  QMenu* submenu = menu.addMenu(caption);
  submenu->menuAction()->setObjectName(name);
  return submenu;
}

/// One of the facts beside the settings: a caption and its value.
QLabel* AddFact(QGridLayout& grid, QWidget* parent, const char* name, const QString& caption)
{
  const int row = grid.rowCount();
  auto* text = new QLabel(caption, parent);
  grid.addWidget(text, row, 0);
  QLabel* value = MakeValueLabel(parent, name, caption);
  value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid.addWidget(value, row, 1);
  return value;
}

}  // namespace

frmSRS::frmSRS(Program& program, QWidget* parent)
    : ChildWindow(program, parent, {Name, "SRS Sample Site Selection", {1000, 750}, "hdoc11", {}}),
      form_(OpenSrs(program.State, program.Ask())),
      progress_(program.State, [this] { ShowGrowth(); })
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(SmallGap);
  auto* left = new QVBoxLayout;
  left->setSpacing(LargeGap);
  settings_ = left;
  left->addLayout(MakeFacts());
  left->addWidget(MakeSizes());
  left->addWidget(MakeControls());
  left->addLayout(MakeButtons());
  left->addStretch();
  auto* top = new QHBoxLayout;
  top->setSpacing(LargeGap);
  top->addLayout(left);
  top->addWidget(MakeView(), 1);
  top->addWidget(MakeSiteTable());
  layout->addLayout(top, 1);
  layout->addLayout(MakeStatus());
  MakeMenus();
  if (form_.Closed) {
    Unload();
    program.Changed();
    return;
  }
  Mirror();
}

QLayout* frmSRS::MakeFacts()
{
  auto* grid = new QGridLayout;
  designNumber_ = AddFact(*grid, this, "LblDN", "Design #:");
  sampleSize_ = AddFact(*grid, this, "LblSS", "Sample Size:");
  signalColumns_ = AddFact(*grid, this, "LblSC", "Signal Data Columns used in Design:");
  grid->setColumnStretch(1, 1);
  grid->setColumnMinimumWidth(1, fontMetrics().horizontalAdvance("200"));  // steady from 5 to 20 sites
  return grid;
}

QGroupBox* frmSRS::MakeSizes()
{
  constexpr std::array<const char*, 3> Names = {"Option1", "Option2", "Option3"};
  constexpr std::array<const char*, 3> ToolTips = {" select 6 sample sites ", " select 12 sample sites ",
                                                   " select 20 sample sites "};
  sizeFrame_ = new QGroupBox("Sample Size Settings", this);
  sizeFrame_->setObjectName("Frame1");
  auto* column = new QVBoxLayout(sizeFrame_);
  for (const DesignSize size : {DesignSize::Limited, DesignSize::Standard, DesignSize::Full}) {
    const auto index = static_cast<std::size_t>(size);
    auto* option = new QRadioButton(sizeFrame_);
    option->setObjectName(Names.at(index));
    option->setToolTip(ToolTips.at(index));
    column->addWidget(option);
    sizes_.at(index) = option;
    connect(option, &QRadioButton::clicked, this,
            [this, size] { Act([this, size](SrsForm& form) { ChooseSize(form, State(), size); }); });
  }
  return sizeFrame_;
}

QGroupBox* frmSRS::MakeControls()
{
  constexpr int LargeChange = 5;
  controlFrame_ = new QGroupBox("Advanced Design Controls", this);
  controlFrame_->setObjectName("Frame2");
  auto* grid = new QGridLayout(controlFrame_);
  adjust_ = MakeCheck(controlFrame_, "Check1", "&Adjust Design Factor",
                      " change RS design levels by adjusting DF value ");
  factorText_ = new QLineEdit(controlFrame_);
  factorText_->setObjectName("Text1");
  factorText_->setToolTip(" please use the horizontal scroll bar to change design factor value ");
  factorText_->setReadOnly(true);
  factorBar_ = new QScrollBar(Qt::Horizontal, controlFrame_);
  factorBar_->setObjectName("HScroll1");
  factorBar_->setFocusPolicy(Qt::StrongFocus);
  factorBar_->setRange(LowestDFactor, HighestDFactor);
  factorBar_->setPageStep(LargeChange);
  factorBar_->setInvertedControls(false);  // to the right is more
  factorBar_->setAccessibleName("Design factor");
  factorCaption_ = MakeFieldLabel(controlFrame_, "Label1", "&Value:", factorText_);
  ignoreTA_ = MakeCheck(controlFrame_, "Check2", "I&gnore TA Information",
                        " do NOT use any TA information in SRSS algorithm ");
  parsing_ = MakeCheck(controlFrame_, "Check3", "Invoke &Parsing", " open up the data parsing window  ");
  for (QWidget* widget : {static_cast<QWidget*>(factorCaption_), static_cast<QWidget*>(factorText_),
                          static_cast<QWidget*>(factorBar_)}) {
    KeepRoom(*widget);
  }
  grid->addWidget(adjust_, 0, 0, 1, 2);
  grid->addWidget(factorCaption_, 1, 0);
  grid->addWidget(factorText_, 1, 1);
  grid->addWidget(factorBar_, 2, 0, 1, 2);
  grid->addWidget(ignoreTA_, 3, 0, 1, 2);
  grid->addWidget(parsing_, 4, 0, 1, 2);
  connect(adjust_, &QCheckBox::toggled, this,
          [this](bool on) { Act([on](SrsForm& f) { AdjustDFactor(f, on); }); });
  connect(factorBar_, &QScrollBar::valueChanged, this,
          [this](int value) { Act([value](SrsForm& f) { MoveDFactor(f, value); }); });
  connect(ignoreTA_, &QCheckBox::toggled, this,
          [this](bool on) { Act([on](SrsForm& f) { IgnoreTransition(f, on); }); });
  connect(parsing_, &QCheckBox::toggled, this, [this](bool on) {
    Act([on](SrsForm& f) { SwitchParsing(f, on); });
    if (form_.Check3) {
      Shared().Show<frmParse>();
    }
  });
  return controlFrame_;
}

QLayout* frmSRS::MakeButtons()
{
  auto* column = new QVBoxLayout;
  levels_ = MakeButton(this, "Command1", "&Display Current SRS Design Levels",
                       " display a list of the current SRS design levels ");
  run_ = MakeButton(this, "Command2", "&Invoke SRSS Algorithm",
                    " invoke the spatial response surface sampling algorithm ");
  save_ = MakeButton(this, "Command4", "&Save Current Design",
                     " save the current sample sites to a [rsd#] output file ");
  discard_ = MakeButton(this, "Command5", "Generate Ne&w Design", " reject the current set of sample sites ");
  leave_ = MakeButton(this, "Command3", "&Cancel", "");
  const int large = run_->sizeHint().height() + SmallGap;
  auto* places = new QGridLayout;  // the two decisions stand where the run was started
  for (QPushButton* button : {levels_, run_, save_, discard_}) {
    button->setMinimumHeight(large);
    button->installEventFilter(this);
    KeepRoom(*button);
  }
  places->addWidget(levels_, 0, 0);
  places->addWidget(run_, 1, 0);
  places->addWidget(save_, 0, 0);
  places->addWidget(discard_, 1, 0);
  column->addLayout(places);
  column->addWidget(leave_);
  connect(levels_, &QPushButton::clicked, this, [this] { Shared().Show<frmDList>(); });
  connect(run_, &QPushButton::clicked, this, [this] { Run(); });
  connect(save_, &QPushButton::clicked, this, [this] { Save(); });
  connect(discard_, &QPushButton::clicked, this, [this] { Discard(); });
  connect(leave_, &QPushButton::clicked, this, [this] { WayOut(); });
  return column;
}

QWidget* frmSRS::MakeView()
{
  view_ = new DrawingView(this);
  view_->setObjectName("PictGW");
  view_->setAccessibleName("Map of the field; the chosen sites stand in the table beside it");
  view_->Show(progress_.Picture());
  view_->Pointed = [this](const std::optional<DrawPoint>& place, double pixel) { PointAt(place, pixel); };
  return view_;
}

QWidget* frmSRS::MakeSiteTable()
{
  sites_ = veln::MakeSiteTable(this, State(), ListDesignSites(State(), form_.Finished));
  sites_->setAccessibleName("Chosen sites");
  sites_->setMouseTracking(true);
  sites_->viewport()->installEventFilter(this);
  sites_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);  // more room is the map's
  connect(sites_, &QTableWidget::cellEntered, this, [this](int row, int) { RingSite(row); });
  connect(sites_, &QTableWidget::currentCellChanged, this, [this](int row, int, int, int) { RingSite(row); });
  return sites_;
}

/// The status line, and at its end the progress of an automatic selection.
QLayout* frmSRS::MakeStatus()
{
  auto* line = new QHBoxLayout;
  line->setSpacing(SmallGap);
  auto* caption = new QLabel("Algorithm Status:", this);
  status_ = MakeValueLabel(this, "LblMS", "Algorithm Status:");
  status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  line->addWidget(caption);
  line->addWidget(status_, 1);

  selectionBar_ = new QWidget(this);
  auto* bar = new QHBoxLayout(selectionBar_);
  bar->setContentsMargins(0, 0, 0, 0);
  bar->setSpacing(SmallGap);
  selectionProgress_ = new QProgressBar(selectionBar_);
  selectionProgress_->setObjectName("selectionProgress");
  selectionProgress_->setAccessibleName("Designs made");
  selectionText_ = MakeValueLabel(selectionBar_, "selectionText", "Best score");
  stop_ =
      MakeButton(selectionBar_, "Stop", "S&top", "stop the selection and leave everything as it was before");
  bar->addWidget(selectionProgress_, 1);
  bar->addWidget(selectionText_, 1);
  bar->addWidget(stop_);
  selectionBar_->hide();
  KeepRoom(*selectionBar_);
  line->addWidget(selectionBar_, 1);
  return line;
}

void frmSRS::MakeMenus()
{
  auto* bar = new QMenuBar(this);
  layout()->setMenuBar(bar);
  QMenu* options = bar->addMenu("&Options");
  options_ = options->menuAction();
  options_->setObjectName("mnuSRSNewOptions");
  QMenu* automatic = AddSubmenu(*options, "mnuSRSAutoPic", "Invoke SRSS &auto-design selection algorithm");
  for (const bool limited : {true, false}) {
    QAction* entry = limited ? AddEntry(*automatic, "mnuSRSAutoLimited", "Invoke &limited ADS Alg")
                             : AddEntry(*automatic, "mnuSRSAutoFull", "Invoke &full ADS Alg");
    connect(entry, &QAction::triggered, this,
            [this, limited] { Select(limited ? SelectionScope::Limited : SelectionScope::Full); });
  }
  options->addSeparator();
  QMenu* reduction = AddSubmenu(*options, "mnuSRSReduce", "&Reduce number of available survey sites");
  reduce_ = reduction->menuAction();
  for (std::size_t i = 0; i < ReductionSteps.size(); ++i) {
    const QString share = QString::number(ReductionSteps.at(i).Percent);
    reductions_.at(i) = AddEntry(*reduction, ("mnuSRSr" + share).toUtf8(), "Reduce by &" + share + "%");
    connect(reductions_.at(i), &QAction::triggered, this, [this, factor = ReductionSteps.at(i).Factor] {
      Act([&](SrsForm& f) { ReduceGridSize(f, State(), factor, Shared().Ask()); });
      CloseIfAsked();
      Shared().Changed();
    });
  }
  recover_ =
      AddEntry(*options, "mnuSRSRecover", "Re&cover all available survey sites (removed via Reduction)");
  connect(recover_, &QAction::triggered, this, [this] {
    Act([&](SrsForm& f) { RecoverGridSites(f, State(), Shared().Ask()); });
    CloseIfAsked();
    Shared().Changed();
  });
  options->addSeparator();
  QMenu* support = AddSubmenu(*options, "mnuSSopt", "&Support sites");
  for (const bool include : {true, false}) {
    QAction* entry = include ? AddEntry(*support, "mnuSSinclude", "&Include support sites in design")
                             : AddEntry(*support, "mnuSSexclude", "&Exclude support sites from design");
    connect(entry, &QAction::triggered, this,
            [this, include] { Act([&](SrsForm& f) { IncludeSupport(f, include, Shared().Ask()); }); });
  }
  MakeHelpMenu(*bar);
}

void frmSRS::MakeHelpMenu(QMenuBar& bar)
{
  struct HelpEntry {
    const char* Name;
    const char* Caption;
    const char* Document;
  };
  constexpr std::array<HelpEntry, 3> Entries = {
      {{"mnuSRSH1", "&What is an SRS sampling desing", "hdoc11"},
       {"mnuSRSH2", "&Rules for generating SRS designs", "hdoc11b"},
       {"mnuSRSH3", "&Using the advanced SRS design features", "hdoc11c"}}};
  QMenu* help = bar.addMenu("&Help");
  help->menuAction()->setObjectName("mnuSRSH");
  for (const HelpEntry& entry : Entries) {
    connect(AddEntry(*help, entry.Name, entry.Caption), &QAction::triggered, this,
            [this, document = entry.Document] { RequestHelp(Shared(), document); });
  }
}

}  // namespace veln
