#include "desktop/design/frm_srs.h"

#include "desktop/design/frm_d_list.h"
#include "desktop/design/frm_parse.h"
#include "desktop/design/frm_srs_observer.h"
#include "desktop/design/frm_srs_opt.h"
#include "desktop/design/run_status.h"
#include "desktop/design/site_table.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/drawing_view.h"
#include "desktop/parts/fields.h"
#include "desktop/parts/layout.h"
#include "forms/design_table.h"
#include "forms/reduction_form.h"

#include <QKeyEvent>

#include <algorithm>

namespace veln {

void frmSRS::Act(const std::function<void(SrsForm&)>& action)
{
  Shared().Try([&] { action(form_); });
  Mirror();
}

void frmSRS::UseSettings(const Combination& combination, int strata)
{
  Act([&](SrsForm& form) {
    AdjustDFactor(form, true);
    MoveDFactor(form, DFactorOf(combination.FactorIndex));
    if (strata > 1) {
      SwitchParsing(form, true);
    }
  });
  if (form_.Check3) {
    Shared().CloseAll<frmParse>();  // its choice would take this one's place
    Act([&](SrsForm& form) {
      ParseForm parse = LoadParseForm(State());
      ChooseStratum(parse, combination.Stratum);
      InvokeParsing(parse, form, Shared().Ask());
    });
  }
}

QSize frmSRS::sizeHint() const
{
  const int taller = settings_->sizeHint().height() - view_->sizeHint().height();
  return ChildWindow::sizeHint() + QSize(qMax(0, taller), 0);  // the square view fills its room
}

void frmSRS::WayOut()
{
  CloseSrs(form_);
  CloseCompanions();
  Unload();
  Shared().Changed();
}

void frmSRS::keyPressEvent(QKeyEvent* event)
{
  if (event->key() == Qt::Key_Escape && form_.Finished) {
    event->accept();  // a finished design waits for a decision
    return;
  }
  ChildWindow::keyPressEvent(event);
}

/// Two buttons take turns in one place: the second click of a double click is not meant for the other one.
bool frmSRS::eventFilter(QObject* object, QEvent* event)
{
  if (event->type() == QEvent::MouseButtonDblClick) {
    return true;
  }
  if (event->type() == QEvent::Leave && object == sites_->viewport()) {
    RingSite(sites_->currentRow());
  }
  return ChildWindow::eventFilter(object, event);
}

void frmSRS::Run()
{
  progress_.Clear();
  {
    frmSRSObserver observer(*status_, progress_);
    Shared().Try([&] { RunDesign(form_, State(), Shared().Ask(), observer); });
  }
  Mirror();
  ShowSites();
  if (form_.Finished) {
    sites_->setFocus();
    sites_->selectRow(0);
  }
  Shared().Changed();
}

void frmSRS::Save()
{
  Program& program = Shared();
  const bool saved = program.Try([&] { SaveDesign(form_, State(), program.Ask(), program.Now()); });
  if (!CloseIfAsked()) {
    if (saved) {
      progress_.Clear();
    }
    Mirror();
    ShowSites();
    if (saved) {
      run_->setFocus();
    }
  }
  program.Changed();
}

void frmSRS::Discard()
{
  DiscardDesign(form_, State(), Shared().Ask());
  if (!CloseIfAsked()) {
    progress_.Clear();
    Mirror();
    ShowSites();
    run_->setFocus();
  }
  Shared().Changed();
}

void frmSRS::Select(SelectionScope scope)
{
  Program& program = Shared();
  frmSRSObserver observer(*status_, progress_);
  std::optional<SelectionScores> scores;
  const bool ended =
      program.Try([&] { scores = SelectDesigns(form_, State(), scope, program.Ask(), observer); });
  observer.End();
  if (CloseIfAsked()) {
    return;
  }
  if (observer.Began()) {
    progress_.Clear();
  }
  Mirror();
  program.Changed();
  if (ended && scores) {
    program.ShowWith<frmSRSOpt>([&](QWidget* main) { return new frmSRSOpt(program, main, *scores); });
  }
}

void frmSRS::CloseCompanions()
{
  Shared().CloseAll<frmParse, frmDList, frmSRSOpt>();
}

bool frmSRS::CloseIfAsked()
{
  if (form_.Closed) {
    CloseCompanions();
    Unload();
    Shared().Changed();
  }
  return form_.Closed;
}

std::vector<CandidateSite> frmSRS::ListedSites() const
{
  std::vector<CandidateSite> sites;
  for (int point = 0; form_.Finished && point < form_.Finished->PointCount(); ++point) {
    const CandidateSite& site = form_.Finished->Sites.at(static_cast<std::size_t>(point))[0];
    if (site.Exists()) {
      sites.push_back(site);
    }
  }
  return sites;
}

void frmSRS::ShowSites()
{
  sites_->ShowSites(ListDesignSites(State(), form_.Finished));
  view_->Ring(std::nullopt);
}

void frmSRS::RingSite(int row)
{
  if (!form_.Finished || row < 0 || row >= sites_->rowCount()) {
    view_->Ring(std::nullopt);
    return;
  }
  const CandidateSite site = ListedSites().at(sites_->RowGiven(row));
  view_->Ring(progress_.Place(site.X, site.Y));
}

void frmSRS::PointAt(const std::optional<DrawPoint>& place, double pixel)
{
  constexpr double Reach = 8;  // pixels
  const std::vector<CandidateSite> sites = ListedSites();
  const auto found = std::ranges::find_if(sites, [&](const CandidateSite& site) {
    const DrawPoint at = progress_.Place(site.X, site.Y);
    return place && qAbs(at.X - place->X) < Reach * pixel && qAbs(at.Y - place->Y) < Reach * pixel;
  });
  if (found != sites.end()) {
    const int row = sites_->RowShown(static_cast<std::size_t>(found - sites.begin()));
    sites_->selectRow(row);
    RingSite(row);
  }
}

void frmSRS::Mirror()
{
  MirrorSettings();
  MirrorState();
  if (!form_.Check3) {
    Shared().CloseAll<frmParse>();
  }
  ShowValue(*designNumber_, ToQt(form_.LblDN));
  ShowValue(*sampleSize_, ToQt(form_.LblSS()));
  ShowValue(*signalColumns_, ToQt(form_.LblSC));
  status_->Keep(ToQt(form_.LblMS));
  status_->ShowLast();
  MirrorMenus();
}

void frmSRS::MirrorSettings()
{
  for (const DesignSize size : {DesignSize::Limited, DesignSize::Standard, DesignSize::Full}) {
    const auto index = static_cast<std::size_t>(size);
    QString caption = ToQt(form_.OptionCaption(size));
    for (const char* key : {"limited", "ndard", "ull"}) {
      caption.replace(key, QString("&") + key);
    }
    SetCaption(*sizes_.at(index), caption);
    ShowChoice(*sizes_.at(index), form_.Size == size, form_.OptionEnabled.at(index));
  }
  ShowChoice(*adjust_, form_.Check1, true);
  ShowChoice(*ignoreTA_, form_.Check2, form_.Check2Enabled);
  ShowChoice(*parsing_, form_.Check3, form_.Check3Enabled);
  ShowNumber(*factorBar_, form_.HScroll1);
  factorText_->setText(ToQt(form_.Text1()));
  SetShown({factorCaption_, factorText_, factorBar_}, form_.Check1);
}

void frmSRS::MirrorState()
{
  const bool ready = !form_.Finished;
  sizeFrame_->setEnabled(ready);
  controlFrame_->setEnabled(ready);
  SetShown({levels_, run_}, ready);
  SetShown({save_, discard_}, !ready);
  run_->setDefault(ready);
  SetCaption(*leave_, "&" + ToQt(form_.Command3Caption));
  leave_->setToolTip(ToQt(form_.Command3ToolTip));
}

}  // namespace veln
