#include "desktop/design/frm_srs_observer.h"

#include "desktop/design/run_status.h"
#include "desktop/parts/controls.h"
#include "forms/progress_view.h"
#include "toolkit/number_text.h"

#include <QApplication>

namespace veln {

namespace {

constexpr int RepaintMilliseconds = 17;  // 60 paints a second

}  // namespace

frmSRSObserver::frmSRSObserver(RunStatus& status, ProgressView& picture)
    : RunObserver(&picture), status_(status), picture_(picture)
{
  sincePaint_.start();
}

frmSRSObserver::~frmSRSObserver()
{
  End();
}

void frmSRSObserver::Begin()
{
  began_ = true;
  if (!busy_) {
    busy_ = true;
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
  }
}

void frmSRSObserver::End()
{
  if (!busy_) {
    return;
  }
  busy_ = false;
  guard_ = std::make_unique<InputGuard>(nullptr);
  QApplication::processEvents();
  guard_.reset();
  status_.HideProgress();
  QGuiApplication::restoreOverrideCursor();
}

void frmSRSObserver::Status(const std::string& text)
{
  status_.Keep(ToQt(text));
  if (sincePaint_.elapsed() >= RepaintMilliseconds) {
    status_.ShowLast();
    sincePaint_.restart();
  }
}

void frmSRSObserver::MapReady()
{
  Begin();
  RunObserver::MapReady();
}

bool frmSRSObserver::NextDesign(int k, int n)
{
  if (!guard_) {
    Begin();
    guard_ = std::make_unique<InputGuard>(&status_.Stop());
    QObject::connect(&status_.Stop(), &QPushButton::clicked, guard_.get(), [this] { stopped_ = true; });
    sinceStart_.start();
  }
  last_ = k == n;
  picture_.Clear();
  if (k == 1 || sincePaint_.elapsed() >= RepaintMilliseconds) {
    ShowSelection(k, n);
    status_.ShowLast();
    QApplication::processEvents();
    sincePaint_.restart();
  }
  return !stopped_;
}

void frmSRSObserver::DesignScored(std::optional<double> score)
{
  if (score && (!best_ || *score < *best_)) {
    best_ = score;
  }
  if (last_) {
    End();  // what is told after the selection can be answered
  }
}

void frmSRSObserver::ShowSelection(int k, int n)
{
  constexpr double Milliseconds = 1000;
  QString text;
  if (best_) {
    text = "best so far " + ToQt(FormatNumber(*best_, "0.000"));
  }
  if (k > 1) {
    const double perDesign = static_cast<double>(sinceStart_.elapsed()) / (k - 1);
    text += ", " + ToQt(FormatNumber(perDesign * (n - k + 1) / Milliseconds, "0")) + " s left";
  }
  status_.ShowProgress(k, n, text);
}

}  // namespace veln
