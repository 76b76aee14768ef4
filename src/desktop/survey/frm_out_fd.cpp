#include "desktop/survey/frm_out_fd.h"

#include "desktop/parts/busy_pointer.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "toolkit/number_text.h"

#include <QTimer>

namespace veln {

namespace {

QLabel* MakeProgressLine(QWidget* parent, const char* name, const QString& text)
{
  constexpr int Columns = 56;  // room for the longest text, so that the window keeps its size
  QLabel* line = MakeText(parent, name, text);
  line->setMinimumWidth(line->fontMetrics().averageCharWidth() * Columns);
  line->hide();
  KeepRoom(*line);
  return line;
}

}  // namespace

frmOutFD::frmOutFD(Program& program, QWidget* parent)
    : ChildWindow(program, parent, {Name, "Data File Export"}), timer1_(new QTimer(this))
{
  constexpr int TickMilliseconds = 100;
  label2_ = MakeProgressLine(this, "Label2", "Creating output data file, one moment please...");
  label1_ = MakeProgressLine(this, "Label1", "Writing Line # XXX to output data file");
  confirmation_ = MakeConfirmation();
  SetColumn(*this, {label2_, label1_, LayoutItem::Gap(SmallGap), LayoutItem::Rest(), confirmation_},
            SmallGap);
  timer1_->setObjectName("Timer1");
  connect(timer1_, &QTimer::timeout, this, [this] { Tick(); });
  timer1_->start(TickMilliseconds);
}

QGroupBox* frmOutFD::MakeConfirmation()
{
  QPushButton* yes = MakeButton(this, "Command1", "&Yes", "", [this] {
    Unload();
    Shared().EndProgram();
  });
  QPushButton* no = MakeButton(this, "Command2", "&No", "", Leaves());
  QGroupBox* frame = Frame(this, "Frame1", "Confirm Program Exit", ButtonRow({nullptr, no, yes}));
  frame->hide();
  KeepRoom(*frame);
  return frame;
}

void frmOutFD::Tick()
{
  if (!Unloaded() && timer_.Tick()) {
    label2_->show();
    label2_->repaint();
    Shared().Try([this] { Export(); });
  }
}

void frmOutFD::Export()
{
  const ExportResult result = [this] {
    const BusyPointer busy;
    return MakeOutF(State(), [this](int site) { LblUpdate(site); });
  }();
  label2_->setText(ToQt(result.Label2));
  label2_->repaint();
  label1_->setText(ToQt(result.Label1));
  label1_->show();
  label1_->repaint();
  if (!result.Written) {
    Shared().Ask().Warn(result.Reason);
  }
  confirmation_->show();
}

void frmOutFD::LblUpdate(int site)
{
  label1_->setText("exporting line # " + ToQt(NumberToString(site)));
  label1_->show();
  label1_->repaint();
}

}  // namespace veln
