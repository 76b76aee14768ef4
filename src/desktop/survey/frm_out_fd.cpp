#include "desktop/survey/frm_out_fd.h"

#include "desktop/parts/busy_pointer.h"
#include "desktop/parts/controls.h"
#include "toolkit/number_text.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

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
    : ChildWindow(program, parent, {Name, "Data File Export", {1000, 750}, "", std::nullopt}),
      timer1_(new QTimer(this))
{
  constexpr int TickMilliseconds = 100;
  label2_ = MakeProgressLine(this, "Label2", "Creating output data file, one moment please...");
  label1_ = MakeProgressLine(this, "Label1", "Writing Line # XXX to output data file");
  confirmation_ = MakeConfirmation();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(SmallGap);
  layout->addWidget(label2_);
  layout->addWidget(label1_);
  layout->addSpacing(SmallGap);
  layout->addStretch();
  layout->addWidget(confirmation_);
  timer1_->setObjectName("Timer1");
  connect(timer1_, &QTimer::timeout, this, [this] { Tick(); });
  timer1_->start(TickMilliseconds);
}

QGroupBox* frmOutFD::MakeConfirmation()
{
  auto* frame = new QGroupBox("Confirm Program Exit", this);
  frame->setObjectName("Frame1");
  QPushButton* yes = MakeButton(frame, "Command1", "&Yes", "");
  QPushButton* no = MakeButton(frame, "Command2", "&No", "");
  yes->setDefault(true);
  connect(yes, &QPushButton::clicked, this, [this] {
    Unload();
    Shared().EndProgram();
  });
  connect(no, &QPushButton::clicked, this, [this] { Unload(); });
  auto* row = new QHBoxLayout(frame);
  row->setSpacing(SmallGap);
  row->addStretch();
  row->addWidget(no);
  row->addWidget(yes);
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
