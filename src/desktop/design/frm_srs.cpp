#include "desktop/design/frm_srs.h"

#include "desktop/design/frm_d_list.h"
#include "desktop/design/frm_parse.h"
#include "desktop/design/frm_srs_observer.h"
#include "desktop/design/frm_srs_opt.h"
#include "desktop/design/site_table.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/drawing_view.h"
#include "forms/design_table.h"
#include "forms/reduction_form.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTableWidget>

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
    CloseParsing();  // its choice would take this one's place
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
    frmSRSObserver observer(*this, progress_);
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
  frmSRSObserver observer(*this, progress_);
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

void frmSRS::CloseParsing()
{
  if (auto* parse = Shared().Find<frmParse>(); parse != nullptr) {
    parse->Unload();
  }
}

void frmSRS::CloseCompanions()
{
  const auto close = [](ChildWindow* window) {
    if (window != nullptr) {
      window->Unload();
    }
  };
  CloseParsing();
  close(Shared().Find<frmDList>());
  close(Shared().Find<frmSRSOpt>());
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

void frmSRS::ShowGrowth()
{
  if (view_ != nullptr) {
    view_->Grown();
  }
}

void frmSRS::KeepStatus(const QString& text)
{
  constexpr qsizetype Kept = 20;
  if (lastStatus_.isEmpty() || lastStatus_.constLast() != text) {
    lastStatus_.append(text);
    lastStatus_.remove(0, qMax(qsizetype{0}, lastStatus_.size() - Kept));
  }
}

void frmSRS::ShowStatus()
{
  ShowValue(*status_, lastStatus_.constLast());
  status_->setToolTip(lastStatus_.join('\n'));
}

void frmSRS::ShowSites()
{
  FillSiteTable(*sites_, ListDesignSites(State(), form_.Finished));
  view_->Ring(std::nullopt);
}

void frmSRS::RingSite(int row)
{
  if (!form_.Finished || row < 0 || row >= sites_->rowCount()) {
    view_->Ring(std::nullopt);
    return;
  }
  const auto point = sites_->item(row, 0)->text().toUInt() - 1;
  const CandidateSite& site = form_.Finished->Sites.at(point)[0];
  view_->Ring(progress_.Place(site.X, site.Y));
}

void frmSRS::PointAt(const std::optional<DrawPoint>& place, double pixel)
{
  constexpr double Reach = 8;  // pixels
  if (!form_.Finished || !place) {
    return;
  }
  for (int row = 0; row < sites_->rowCount(); ++row) {
    const auto point = sites_->item(row, 0)->text().toUInt() - 1;
    const CandidateSite& site = form_.Finished->Sites.at(point)[0];
    const DrawPoint at = progress_.Place(site.X, site.Y);
    if (qAbs(at.X - place->X) < Reach * pixel && qAbs(at.Y - place->Y) < Reach * pixel) {
      sites_->selectRow(row);
      RingSite(row);
      return;
    }
  }
}

void frmSRS::Mirror()
{
  MirrorSettings();
  MirrorState();
  if (!form_.Check3) {
    CloseParsing();
  }
  ShowValue(*designNumber_, ToQt(form_.LblDN));
  ShowValue(*sampleSize_, ToQt(form_.LblSS()));
  ShowValue(*signalColumns_, ToQt(form_.LblSC));
  KeepStatus(ToQt(form_.LblMS));
  ShowStatus();
}

void frmSRS::MirrorSettings()
{
  for (const DesignSize size : {DesignSize::Limited, DesignSize::Standard, DesignSize::Full}) {
    const auto index = static_cast<std::size_t>(size);
    QString caption = ToQt(form_.OptionCaption(size));
    for (const char* key : {"limited", "ndard", "ull"}) {
      caption.replace(key, QString("&") + key);
    }
    sizes_.at(index)->setText(caption);
    sizes_.at(index)->setAccessibleName(ToQt(form_.OptionCaption(size)));
    ShowChoice(*sizes_.at(index), form_.Size == size, form_.OptionEnabled.at(index));
  }
  ShowChoice(*adjust_, form_.Check1, true);
  ShowChoice(*ignoreTA_, form_.Check2, form_.Check2Enabled);
  ShowChoice(*parsing_, form_.Check3, form_.Check3Enabled);
  const QSignalBlocker quiet(factorBar_);
  factorBar_->setValue(form_.HScroll1);
  factorText_->setText(ToQt(form_.Text1()));
  factorCaption_->setVisible(form_.Check1);
  factorText_->setVisible(form_.Check1);
  factorBar_->setVisible(form_.Check1);
  for (std::size_t i = 0; i < reductions_.size(); ++i) {
    reductions_.at(i)->setEnabled(form_.Reduction.Steps.at(i));
  }
  reduce_->setEnabled(form_.Reduction.mnuSRSReduce);
  recover_->setEnabled(form_.Reduction.mnuSRSRecover);
}

void frmSRS::MirrorState()
{
  const bool ready = !form_.Finished;
  sizeFrame_->setEnabled(ready);
  controlFrame_->setEnabled(ready);
  options_->setEnabled(ready);
  levels_->setVisible(ready);
  run_->setVisible(ready);
  save_->setVisible(!ready);
  discard_->setVisible(!ready);
  run_->setDefault(ready);
  leave_->setText("&" + ToQt(form_.Command3Caption));
  leave_->setToolTip(ToQt(form_.Command3ToolTip));
  leave_->setAccessibleName(ToQt(form_.Command3Caption));
}

}  // namespace veln
