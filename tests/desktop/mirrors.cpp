// What the forms say that their windows show.
#include "design/manual_design.h"
#include "desktop/design/frm_d_list.h"
#include "desktop/design/frm_mask.h"
#include "desktop/design/frm_parse.h"
#include "desktop/design/frm_srs.h"
#include "desktop/design/frm_srs_opt.h"
#include "desktop/graphics/frm_igc.h"
#include "desktop/graphics/frm_pct.h"
#include "desktop/graphics/frm_site_map.h"
#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/graphics/overlay_chooser.h"
#include "desktop/shown.h"
#include "desktop/signal/frm_sig_decorr.h"
#include "desktop/signal/frm_sig_val.h"
#include "desktop/survey/frm_basic_stats.h"
#include "desktop/survey/frm_structure.h"
#include "desktop/workspace/frm_file_io.h"
#include "desktop/workspace/frm_project.h"
#include "workspace/captions.h"
#include "workspace/settings.h"

#include <QAbstractButton>
#include <gtest/gtest.h>

#include <initializer_list>

namespace veln {

namespace {

using std::string;

/// What a form says of its window.
class Saying {
 public:
  explicit Saying(const QWidget* window) : window_(window), shown_(ShownBy(*window)) {}

  [[nodiscard]] string Property(const string& control, const char* property) const
  {
    const auto found = shown_.find(control);
    const bool has = found != shown_.end() && found->second.contains(property);
    return has ? found->second.at(property) : "";
  }
  void Is(const string& control, const char* property, const string& value) const
  {
    EXPECT_TRUE(shown_.contains(control)) << control;
    EXPECT_EQ(Property(control, property), value)
        << window_->objectName().toStdString() << " " << control << " " << property;
  }
  void Text(const string& control, const string& text) const
  {
    const string line = QString::fromStdString(text).replace('\n', "\\n").toStdString();
    Is(control, "text", line.empty() ? "" : "\"" + line + "\"");
  }
  void On(const string& control, bool on) const { Is(control, "on", on ? "yes" : ""); }
  void Open(const string& control, bool open) const { Is(control, "closed", open ? "" : "yes"); }
  void Choice(const string& control, bool on, bool open) const
  {
    On(control, on);
    Open(control, open);
  }
  void Visible(std::initializer_list<const char*> controls, bool visible) const
  {
    for (const char* control : controls) {
      Is(control, "hidden", visible ? "" : "yes");
    }
  }
  void Number(const string& bar, int number) const
  {
    EXPECT_EQ(shown_.at(bar).at("value").find(std::to_string(number) + " of "), 0U) << bar;
  }

 private:
  const QWidget* window_;
  std::map<string, Properties> shown_;
};

void ExpectProject(const Saying& window, const ProjectForm& form)
{
  string projects;
  for (const string& project : form.List1) {
    projects += (projects.empty() ? "" : ", ") + string(project == form.LblPrj ? "*" : "") + project;
  }
  window.Text("List1", projects);
  window.Text("LblPrj", form.LblPrj);
  window.Text("LblFID", form.LblFID);
  window.Text("Text1", form.Text1);
  window.Text("Text2", form.Text2);
  window.Text("Text3", form.Text3);
  window.Visible({"Label3", "Text1", "Command3", "Command4"}, form.CreationVisible);
  window.Visible({"LblFID"}, form.LblFIDVisible);
  window.Visible({"Command1"}, form.Command1Visible);
  window.Is("Command3", "default", form.CreationVisible && !form.Command1Visible ? "yes" : "");
}

void ExpectStructure(const Saying& window, const StructureForm& form)
{
  for (const auto& [box, on] : {std::pair{"Check1", form.Check1}, std::pair{"Check2", form.Check2}}) {
    window.On(box, on);
    window.Is(box, "role", on ? "chosen" : "off");
  }
  window.On("Check3", !form.Check4);
  window.On("Check4", form.Check4);
  window.On("Option1", form.Option1);
  window.On("Option2", !form.Option1);
  window.Text("Text1", form.Text1);
  window.Text("Text2", form.Text2);
  window.Text("Text3", form.Text3);
  window.Text("Label9", form.Label9());
  window.Visible({"Label8", "Text2"}, form.Check2);
  window.Visible({"Label5"}, form.Transect);
}

void ExpectDecorrelation(const Saying& window, const SigDecorrForm& form)
{
  window.Number("HScroll1", form.Levels.Masking);
  window.Number("HScroll2", form.Levels.Outlier);
  window.Text("Text1", LevelText(form.Levels.Masking));
  window.Text("Text2", LevelText(form.Levels.Outlier));
  window.Text("Label11", form.Label11);
  window.Text("Label3", form.Label3);
  window.Text("Label4", form.Label4);
  window.Text("Label5", form.Label5);
  window.Visible({"Frame2", "Label3", "Label8"}, form.ResultsVisible);
  window.Visible({"Command3"}, form.ResultsVisible && form.Command3Visible);
  window.Visible({"Command1"}, !form.ResultsVisible);
  window.Text("Command2", form.ResultsVisible ? "&Finished" : "&Cancel");
  window.Is("Command2", "default", form.ResultsVisible ? "yes" : "");
}

void ExpectValidation(const Saying& window, const SigValForm& form)
{
  window.Choice("Option1", form.Option1, form.Option1Enabled);
  window.Choice("Option2", form.Option2, true);
  window.Choice("Check2", form.Check2, form.Check2Enabled);
  window.Visible({"Label1"}, form.Check2);
  window.Choice("ChkEB1", form.ChkEB1, form.ChkEB1Enabled);
  window.Text("LblRC", form.LblRC);
  window.Open("LblRC", form.LblRCEnabled);
  window.Open("Label2", form.Label2Enabled);
  window.Choice("OptEB1", form.OptEB1, form.OptEBEnabled);
  window.Choice("OptEB2", form.OptEB2, form.OptEBEnabled);
}

void ExpectTransformation(const Saying& window, const BasicStatsForm& form)
{
  window.Choice("Check1", form.Check1, form.Check1Enabled);
  window.Choice("Check2", form.Check2, form.Check2Enabled);
  window.Choice("Check3", form.Check3, form.Check3Enabled);
  window.Choice("Check4", form.Check4, form.Check4Enabled);
  window.Text("Text1", form.Labels[0]);
  window.Text("Text2", form.Labels[1]);
  window.Visible({"Label2", "Text2"}, form.Text2Visible);
}

void ExpectSites(const Saying& window, std::size_t sites)
{
  const string rows = " over " + std::to_string(sites) + " rows";
  EXPECT_TRUE(string(window.Property("sites", "text")).ends_with(rows)) << rows;
}

void ExpectDesign(const Saying& window, const SrsForm& form, const SurveyState& state)
{
  const bool ready = !form.Finished;
  for (const DesignSize size : {DesignSize::Limited, DesignSize::Standard, DesignSize::Full}) {
    const auto index = static_cast<std::size_t>(size);
    const string option = "Option" + std::to_string(index + 1);
    window.Choice(option, form.Size == size, ready && form.OptionEnabled.at(index));
    string caption = window.Property(option, "text");
    std::erase(caption, '&');
    EXPECT_EQ(caption, "\"" + form.OptionCaption(size) + "\"");
  }
  window.Choice("Check1", form.Check1, ready);
  window.Choice("Check2", form.Check2, ready && form.Check2Enabled);
  window.Choice("Check3", form.Check3, ready && form.Check3Enabled);
  window.Visible({"Label1", "Text1", "HScroll1"}, form.Check1);
  window.Text("Text1", form.Text1());
  window.Number("HScroll1", form.HScroll1);
  window.Text("LblDN", std::to_string(state.DesignCount + 1));
  window.Text("LblDN", form.LblDN);
  window.Text("LblSS", form.LblSS());
  window.Text("LblSC", form.LblSC);
  window.Text("LblMS", form.LblMS);
  window.Visible({"Command1", "Command2"}, ready);
  window.Visible({"Command4", "Command5"}, !ready);
  window.Is("Command2", "default", ready ? "yes" : "");
  window.Text("Command3", "&" + form.Command3Caption);
  window.Is("Command3", "tip", "\"" + form.Command3ToolTip + "\"");
  window.Open("mnuSRSNewOptions", ready);
  window.Open("mnuSRSReduce", form.Reduction.mnuSRSReduce);
  window.Open("mnuSRSRecover", form.Reduction.mnuSRSRecover);
  constexpr const char* Steps[] = {"mnuSRSr50", "mnuSRSr67", "mnuSRSr75", "mnuSRSr80"};
  for (std::size_t step = 0; step < form.Reduction.Steps.size(); ++step) {
    window.Open(Steps[step], form.Reduction.Steps.at(step));
  }
  window.Visible({"Stop", "selectionProgress"}, false);
  EXPECT_EQ(std::ranges::count(state.SiteStatus, site_status::Candidate) > 0, !ready);
  const auto point = [](const auto& sites) { return sites[0].Exists(); };
  ExpectSites(window,
              ready ? 0 : static_cast<std::size_t>(std::ranges::count_if(form.Finished->Sites, point)));
}

void ExpectManual(const Saying& window, const MaskForm& form, const SurveyState& state)
{
  window.Text("Text1", form.Text1);
  window.Text("Label2", form.Label2);
  window.Visible({"Label2"}, form.Label2Visible);
  window.Is("Label2", "role", form.Label2Colour == MaskForm::Colour::LightRed ? "warning" : "chosen");
  window.Text("Text2", form.Text2);
  window.Visible({"Text2"}, form.Text2Visible);
  window.On("Check1", form.Check1);
  ExpectSites(window, SelectedSites(state).size());
}

void ExpectParsing(const Saying& window, const ParseForm& form)
{
  window.Text("Label2", form.Label2());
  for (int stratum = 1; stratum <= MostStrata; ++stratum) {
    window.Choice("Option" + std::to_string(stratum), form.StrataChoice == stratum - 1,
                  form.OptionEnabled(stratum));
  }
}

constexpr std::pair<const char*, GraphEntry> GraphEntries[] = {
    {"mnuGrid", GraphEntry::mnuGrid},   {"mnuScatter", GraphEntry::mnuScatter},
    {"mnuSs1x", GraphEntry::mnuSs1x},   {"mnuSs1y", GraphEntry::mnuSs1y},
    {"mnuSs2x", GraphEntry::mnuSs2x},   {"mnuSs2y", GraphEntry::mnuSs2y},
    {"mnuSs1s2", GraphEntry::mnuSs1s2}, {"mnuSz1z2", GraphEntry::mnuSz1z2},
    {"mnuLine", GraphEntry::mnuLine},   {"mnuLs1", GraphEntry::mnuLs1},
    {"mnuLs2", GraphEntry::mnuLs2},     {"mnuLs1s2", GraphEntry::mnuLs1s2},
    {"mnuHist", GraphEntry::mnuHist},   {"mnuHs1", GraphEntry::mnuHs1},
    {"mnuHs2", GraphEntry::mnuHs2},     {"mnuHz1", GraphEntry::mnuHz1},
    {"mnuHz2", GraphEntry::mnuHz2},     {"mnuHta", GraphEntry::mnuHta},
    {"mnuCSG", GraphEntry::mnuCSG},     {"mnuVs1", GraphEntry::mnuVs1},
    {"mnuVs2", GraphEntry::mnuVs2},     {"mnuVz1", GraphEntry::mnuVz1},
    {"mnuVz2", GraphEntry::mnuVz2},     {"mnuVta", GraphEntry::mnuVta},
    {"mnuOSS", GraphEntry::mnuOSS}};

void ExpectGraph(const Saying& window, const SurveyGraph& graph)
{
  for (const auto& [entry, gate] : GraphEntries) {
    window.Open(entry, graph.IsEnabled(gate));
  }
  window.Visible({"Frame1"}, graph.Shown.LinePanel);
  window.Visible({"Frame2"}, graph.Shown.StatisticsPanel);
  window.Visible({"Frame3"}, graph.Shown.LegendPanel);
  window.Text("Text1", graph.LinePanel.Text1);
  window.Open("Command1", graph.LinePanel.Command1Enabled);
  window.Open("Command2", graph.LinePanel.Command2Enabled);
  window.Open("Command6", graph.LinePanel.Command6Enabled);
  window.Open("Command7", graph.LinePanel.Command7Enabled);
  const PlotStatistics& texts = graph.Shown.Statistics;
  for (const auto& [label, text] :
       {std::pair{"LblT1", texts.LblT1}, std::pair{"Lblm1", texts.Lblm1}, std::pair{"Lblv1", texts.Lblv1},
        std::pair{"LblT2", texts.LblT2}, std::pair{"Lblm2", texts.Lblm2}, std::pair{"Lblv2", texts.Lblv2},
        std::pair{"LblCorr", texts.LblCorr}, std::pair{"Lblr1", texts.Lblr1}, std::pair{"Lblr2", texts.Lblr2},
        std::pair{"txtTitle", graph.Shown.Title}}) {
    window.Text(label, text);
  }
  window.On("scaleBar", graph.Options.ScaleBar);
  window.On("northArrow", graph.Options.NorthArrow);
  window.On("safeColours", graph.Options.ColourBlindSafe);
}

void ExpectInitialization(const Saying& window, const IgcForm& form)
{
  window.Open("Label1", form.DirectionEnabled);
  window.Choice("Option1", form.Option1, form.DirectionEnabled);
  window.Choice("Option2", form.Option2, form.DirectionEnabled);
  window.Choice("Check1", form.Check1, form.DirectionEnabled);
  window.Visible({"Check2", "Check3"}, false);
  window.On("Check4", form.Check4);
  window.On("Check5", form.Check5);
  constexpr const char* Palettes[] = {"optColor1", "optColor2", "optColor3", "optGray"};
  for (int i = 0; i < 4; ++i) {
    window.On(Palettes[i], form.ColorChoice == i + 1);
    window.On("optDP" + std::to_string(i + 2), form.PlacesChoice == i + 2);
  }
  window.Number("HScroll1", form.SizeChoice);
  window.Text("Text1", form.Text1());
}

void ExpectTranslation(const Saying& window, const PctForm& form)
{
  constexpr TranslationKind Kinds[] = {TranslationKind::Swap, TranslationKind::Rotate,
                                       TranslationKind::ReverseX, TranslationKind::ReverseY};
  for (int i = 0; i < 4; ++i) {
    window.On("Option" + std::to_string(i + 1), form.Selected == Kinds[i]);
  }
  window.Number("HScroll1", form.HScroll1);
  window.Text("Text1", form.Text1());
  window.Visible({"HScroll1", "Label1", "Text1"}, form.RotationVisible());
  window.Visible({"Command2"}, form.Command2Visible());
}

void ExpectSiteMap(const Saying& window, const SiteMapForm& form)
{
  window.Text("lblSMT", form.lblSMT);
  window.Open("mnusubSRS", form.mnusubSRS);
  window.Open("mnusubUGD", form.mnusubUGD);
  for (std::size_t i = 0; i < form.mnusubRS.size(); ++i) {
    window.Open("mnusubRS" + std::to_string(i + 1), form.mnusubRS.at(i));
  }
}

void ExpectFileIo(const Saying& window, const FileIoForm& form, const SurveyState& state)
{
  window.Text("txtEditor", form.TxtEditor);
  window.Text("txtIOpath", state.InputFilePath);
  window.On("opt300", form.SelectedFactor == 1);
  window.On("opt600", form.SelectedFactor == 2);
  window.On("opt1200", form.SelectedFactor == 4);
}

/// What is on is light blue.
void ExpectChoicesColoured(const QWidget& window)
{
  for (const auto& [control, shown] : ShownBy(window)) {
    const auto role = shown.find("role");
    const bool chosen = role != shown.end() && role->second == "chosen";
    const auto* button = window.findChild<QAbstractButton*>(QString::fromStdString(control));
    if (button != nullptr && button->isCheckable()) {
      EXPECT_EQ(chosen, button->isChecked()) << window.objectName().toStdString() << " " << control;
    }
  }
}

template <class Window, class... More>
void Compare(const Program& program,
             void (*expect)(const Saying&, const std::decay_t<decltype(std::declval<Window>().Form())>&,
                            const More&...),
             const More&... more)
{
  if (const auto* window = program.Find<Window>(); window != nullptr && window->isVisible()) {
    expect(Saying(window), window->Form(), more...);
  }
}

}  // namespace

void ExpectWindowsShowTheirForms(const Program& program)
{
  Compare<frmProject>(program, ExpectProject);
  Compare<frmStructure>(program, ExpectStructure);
  Compare<frmSigDecorr>(program, ExpectDecorrelation);
  Compare<frmSigVal>(program, ExpectValidation);
  Compare<frmBasicStats>(program, ExpectTransformation);
  Compare<frmSRS>(program, ExpectDesign, program.State);
  Compare<frmMask>(program, ExpectManual, program.State);
  Compare<frmParse>(program, ExpectParsing);
  Compare<frmIGC>(program, ExpectInitialization);
  Compare<frmPCT>(program, ExpectTranslation);
  Compare<frmSiteMap>(program, ExpectSiteMap);
  Compare<frmFileIO>(program, ExpectFileIo, program.State);
  if (const auto* graphics = program.Find<frmSvyGraph>(); graphics != nullptr) {
    ExpectGraph(Saying(graphics), graphics->Graph());
  }
  for (const auto& [name, window] : OpenWindows()) {
    ExpectChoicesColoured(*window);
    if (const auto* child = dynamic_cast<const ChildWindow*>(window); child != nullptr && child->Gate()) {
      EXPECT_TRUE(program.State.Menu.IsEnabled(*child->Gate())) << name;
    }
  }
}

}  // namespace veln
