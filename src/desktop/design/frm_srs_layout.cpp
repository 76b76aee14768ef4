// What frmSRS is made of: its controls and menus, without their rules.
#include "desktop/design/frm_d_list.h"
#include "desktop/design/frm_parse.h"
#include "desktop/design/frm_srs.h"
#include "desktop/design/run_status.h"
#include "desktop/design/site_table.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/drawing_view.h"
#include "desktop/parts/fields.h"
#include "desktop/parts/layout.h"
#include "desktop/program/help_request.h"
#include "forms/design_table.h"
#include "forms/reduction_form.h"

#include <QGridLayout>

namespace veln {

namespace {

/// One of the facts beside the settings: a caption and its value.
QLabel* AddFact(QGridLayout& grid, const char* name, const QString& caption)
{
  const int row = grid.rowCount();
  grid.addWidget(new QLabel(caption), row, 0);
  QLabel* value = MakeValueLabel(nullptr, name, caption, Qt::AlignRight);
  grid.addWidget(value, row, 1);
  return value;
}

}  // namespace

frmSRS::frmSRS(Program& program, QWidget* parent)
    : FormWindow(program, parent, {Name, "SRS Sample Site Selection", "hdoc11"},
                 OpenSrs(program.State, program.Ask())),
      progress_(program.State, [this] {
        if (view_ != nullptr) {
          view_->Grown();
        }
      })
{
  QLayout* facts = MakeFacts();
  sizeFrame_ = MakeSizes();
  controlFrame_ = MakeControls();
  settings_ = Column({facts, sizeFrame_, controlFrame_, MakeButtons(), LayoutItem::Rest()}, LargeGap);
  QLayout* top = Row({settings_, {MakeView(), 1}, MakeSiteTable()}, LargeGap);
  status_ = new RunStatus(this);
  SetColumn(*this, {{top, 1}, status_}, SmallGap);
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
  designNumber_ = AddFact(*grid, "LblDN", "Design #:");
  sampleSize_ = AddFact(*grid, "LblSS", "Sample Size:");
  signalColumns_ = AddFact(*grid, "LblSC", "Signal Data Columns used in Design:");
  grid->setColumnStretch(1, 1);
  grid->setColumnMinimumWidth(1, fontMetrics().horizontalAdvance("200"));  // steady from 5 to 20 sites
  return grid;
}

QGroupBox* frmSRS::MakeSizes()
{
  const auto makeSize = [this](const char* name, const QString& toolTip, DesignSize size) {
    return MakeOption(this, name, "", toolTip,
                      [this, size] { Act([&](SrsForm& form) { ChooseSize(form, State(), size); }); });
  };
  sizes_ = {makeSize("Option1", " select 6 sample sites ", DesignSize::Limited),
            makeSize("Option2", " select 12 sample sites ", DesignSize::Standard),
            makeSize("Option3", " select 20 sample sites ", DesignSize::Full)};
  return Frame(this, "Frame1", "Sample Size Settings", Column({sizes_[0], sizes_[1], sizes_[2]}));
}

QGroupBox* frmSRS::MakeControls()
{
  constexpr BarSteps Steps{LowestDFactor, HighestDFactor, 5};
  constexpr int Digits = 6;
  adjust_ =
      MakeCheck(this, "Check1", "&Adjust Design Factor", " change RS design levels by adjusting DF value ",
                [this](bool on) { Act([on](SrsForm& form) { AdjustDFactor(form, on); }); });
  factorText_ = MakeShownNumber(
      this, "Text1", " please use the horizontal scroll bar to change design factor value ", Digits);
  factorBar_ = MakeBar(this, "HScroll1", Steps, [this](int hundredths) {
    Act([hundredths](SrsForm& form) { MoveDFactor(form, hundredths); });
  });
  factorBar_->setAccessibleName("Design factor");
  factorCaption_ = MakeFieldLabel(this, "Label1", "&Value:", factorText_);
  ignoreTA_ =
      MakeCheck(this, "Check2", "I&gnore TA Information", " do NOT use any TA information in SRSS algorithm ",
                [this](bool on) { Act([on](SrsForm& form) { IgnoreTransition(form, on); }); });
  parsing_ =
      MakeCheck(this, "Check3", "Invoke &Parsing", " open up the data parsing window  ", [this](bool on) {
        Act([on](SrsForm& form) { SwitchParsing(form, on); });
        if (form_.Check3) {
          Shared().Show<frmParse>();
        }
      });
  for (QWidget* widget : std::initializer_list<QWidget*>{factorCaption_, factorText_, factorBar_}) {
    KeepRoom(*widget);
  }
  return Frame(this, "Frame2", "Advanced Design Controls",
               Column({adjust_, Row({factorCaption_, factorText_, LayoutItem::Rest()}), factorBar_, ignoreTA_,
                       parsing_}));
}

/// The two decisions stand where the run was started.
QLayout* frmSRS::MakeButtons()
{
  levels_ =
      MakeButton(this, "Command1", "&Display Current SRS Design Levels",
                 " display a list of the current SRS design levels ", [this] { Shared().Show<frmDList>(); });
  run_ = MakeButton(this, "Command2", "&Invoke SRSS Algorithm",
                    " invoke the spatial response surface sampling algorithm ", [this] { Run(); });
  save_ = MakeButton(this, "Command4", "&Save Current Design",
                     " save the current sample sites to a [rsd#] output file ", [this] { Save(); });
  discard_ = MakeButton(this, "Command5", "Generate Ne&w Design", " reject the current set of sample sites ",
                        [this] { Discard(); });
  leave_ = MakeButton(this, "Command3", "&Cancel", "", Leaves());
  for (QPushButton* button : {levels_, run_, save_, discard_}) {
    button->setMinimumHeight(button->sizeHint().height() + SmallGap);
    button->installEventFilter(this);
    KeepRoom(*button);
  }
  auto* places = new QGridLayout;
  places->addWidget(levels_, 0, 0);
  places->addWidget(run_, 1, 0);
  places->addWidget(save_, 0, 0);
  places->addWidget(discard_, 1, 0);
  return Column({places, leave_});
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
  sites_ = new SiteTable(this, "Chosen sites", State(), ListDesignSites(State(), form_.Finished));
  sites_->setMouseTracking(true);
  sites_->viewport()->installEventFilter(this);
  sites_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);  // more room is the map's
  connect(sites_, &QTableWidget::cellEntered, this, [this](int row, int) { RingSite(row); });
  connect(sites_, &QTableWidget::currentCellChanged, this, [this](int row, int, int, int) { RingSite(row); });
  return sites_;
}

std::function<void()> frmSRS::Picks(const std::function<void(SrsForm&)>& action)
{
  return [this, action] {
    Act(action);
    CloseIfAsked();
    Shared().Changed();
  };
}

void frmSRS::MakeMenus()
{
  const auto reduce = [this](std::size_t step) {
    return Picks([this, factor = ReductionSteps.at(step).Factor](SrsForm& form) {
      ReduceGridSize(form, State(), factor, Shared().Ask());
    });
  };
  const auto offered = [this](std::size_t step) {
    return [this, step] { return form_.Reduction.Steps.at(step); };
  };
  const auto support = [this](bool include) {
    return Picks([this, include](SrsForm& form) { IncludeSupport(form, include, Shared().Ask()); });
  };
  const auto help = [this](const char* document) {
    return [this, document] { RequestHelp(Shared(), document); };
  };
  SetMenus({
      {"mnuSRSNewOptions", nullptr, "&Options", {}, "", [this] { return !form_.Finished; }},
      {"mnuSRSAutoPic", "mnuSRSNewOptions", "Invoke SRSS &auto-design selection algorithm"},
      {"mnuSRSAutoLimited", "mnuSRSAutoPic", "Invoke &limited ADS Alg",
       [this] { Select(SelectionScope::Limited); }},
      {"mnuSRSAutoFull", "mnuSRSAutoPic", "Invoke &full ADS Alg", [this] { Select(SelectionScope::Full); }},
      {"", "mnuSRSNewOptions"},
      {"mnuSRSReduce",
       "mnuSRSNewOptions",
       "&Reduce number of available survey sites",
       {},
       "",
       [this] { return form_.Reduction.mnuSRSReduce; }},
      {"mnuSRSr50", "mnuSRSReduce", "Reduce by &50%", reduce(0), "", offered(0)},
      {"mnuSRSr67", "mnuSRSReduce", "Reduce by &67%", reduce(1), "", offered(1)},
      {"mnuSRSr75", "mnuSRSReduce", "Reduce by &75%", reduce(2), "", offered(2)},
      {"mnuSRSr80", "mnuSRSReduce", "Reduce by &80%", reduce(3), "", offered(3)},
      {"mnuSRSRecover", "mnuSRSNewOptions", "Re&cover all available survey sites (removed via Reduction)",
       Picks([this](SrsForm& form) { RecoverGridSites(form, State(), Shared().Ask()); }), "",
       [this] { return form_.Reduction.mnuSRSRecover; }},
      {"", "mnuSRSNewOptions"},
      {"mnuSSopt", "mnuSRSNewOptions", "&Support sites"},
      {"mnuSSinclude", "mnuSSopt", "&Include support sites in design", support(true)},
      {"mnuSSexclude", "mnuSSopt", "&Exclude support sites from design", support(false)},
      {"mnuSRSH", nullptr, "&Help"},
      {"mnuSRSH1", "mnuSRSH", "&What is an SRS sampling desing", help("hdoc11")},
      {"mnuSRSH2", "mnuSRSH", "&Rules for generating SRS designs", help("hdoc11b")},
      {"mnuSRSH3", "mnuSRSH", "&Using the advanced SRS design features", help("hdoc11c")},
  });
}

}  // namespace veln
