// Windows opened, used and closed at random, as far as the menus allow: after every step they agree with the
// record.

#include "desktop/design/frm_d_list.h"
#include "desktop/design/frm_parse.h"
#include "desktop/design/frm_srs.h"
#include "desktop/design/frm_srs_opt.h"
#include "desktop/desktop_fixture.h"
#include "desktop/program/child_window.h"
#include "desktop/shown.h"
#include "support/surveys.h"

#include <QAbstractButton>
#include <QTableWidget>

namespace veln {
namespace {

/// Answers as chance has it.
class RandomDialogs : public Dialogs {
 public:
  explicit RandomDialogs(SteadyRandom& random) : random_(random) {}

  void Inform(const std::string& /*text*/) override {}
  void Warn(const std::string& /*text*/) override {}
  void Beep() override {}
  void Shell(const std::vector<std::string>& /*command*/) override {}
  bool Ask(Question /*question*/, const std::string& /*text*/) override { return random_.Next() < 0.5; }
  std::optional<std::filesystem::path> ShowOpen(const FileQuestion& question) override
  {
    if (random_.Next() < 0.3) {
      return std::nullopt;
    }
    return question.InitDir / (random_.Next() < 0.5 ? "grid.txt" : "transect.txt");
  }

 private:
  SteadyRandom& random_;
};

class RandomWalk : public testing::TestWithParam<std::uint64_t> {
 protected:
  void SetUp() override
  {
    RawSurvey grid = GridSurvey(10, 10);
    RawSurvey transect = TransectSurvey(20, 20);
    grid.Signal1[3] = transect.Signal1[3] = 900;
    WriteText(Directory / "grid.txt", RawFileText(grid, LayoutOf(grid)));
    WriteText(Directory / "transect.txt", RawFileText(transect, LayoutOf(transect)));
    std::filesystem::create_directories(Directory / "data" / "demo");
    Shared.Quit = [this] { ended_ = true; };
    Shared.ChoosePrinter = [](QPrinter&, QWidget*) { return false; };
    Shared.ChooseFile = [this](const QString&, const std::filesystem::path&, const QString&) {
      return Random.Next() < 0.5 ? std::nullopt : std::optional(Directory / "picture.svg");
    };
    StartAfresh();
  }

  void TearDown() override
  {
    main_.reset();
    Settle();
  }

  /// One thing that a user may do now.
  void Step()
  {
    const double kind = Random.Next();
    const std::vector<ChildWindow*> windows = OpenChildren();
    if (kind < 0.005) {
      main_->close();
    } else if (windows.empty() || kind < 0.3) {
      ChooseEntry();
    } else if (kind < 0.34) {
      Any(windows)->close();
    } else if (kind < 0.65) {
      GoOn(*Any(windows));
    } else {
      ChildWindow* window = Any(windows);
      auto actions = ActionsOf(*window);
      actions.erase("printPreview");  // the toolkit's own window
      std::next(actions.begin(), Index(actions.size()))->second(*window);
    }
    Settle();
    HandTimers::Tick(*main_);
    for (const ChildWindow* window : OpenChildren()) {
      HandTimers::Tick(*window);
    }
    Settle();
    Designs += Shared.State.DesignCount > designs_ ? 1 : 0;
    designs_ = Shared.State.DesignCount;
    if (ended_ || (designs_ > 0 && Random.Next() < 0.02)) {
      StartAfresh();
    }
  }

  void ExpectAgreement() const
  {
    const SurveyState& state = Shared.State;
    for (const auto& [name, entry] : Gates) {
      EXPECT_EQ(main_->findChild<QAction*>(name.c_str())->isEnabled(), state.Menu.IsEnabled(entry)) << name;
    }
    ExpectWindowsShowTheirForms(Shared);
    const frmSRS* design = Shared.Find<frmSRS>();
    EXPECT_TRUE(design != nullptr ||
                (Shared.Find<frmParse>() == nullptr && Shared.Find<frmDList>() == nullptr &&
                 Shared.Find<frmSRSOpt>() == nullptr));
    EXPECT_TRUE(Shared.Find<frmParse>() == nullptr || design->Form().Check3);
    EXPECT_EQ(state.SiteStatus.size(), static_cast<std::size_t>(state.SurveySize));
  }

  HandTimers Timers;
  TemporaryDirectory Directory;
  SteadyRandom Random{GetParam()};
  RandomDialogs Answers{Random};
  QSettings Places{QString::fromStdString((Directory / "places.ini").string()), QSettings::IniFormat};
  Program Shared{Answers, [] { return std::string("2026-11-22 14:05:09"); }, Places};
  int Designs = 0;  ///< saved by the algorithm

 private:
  void StartAfresh()
  {
    main_.reset();
    Settle();
    ended_ = false;
    designs_ = 0;
    Shared.State = SurveyState();
    Shared.Field = {};
    Shared.State.ProgramDir = Directory.Path();
    Shared.State.InputFilePath = Directory.Path().string();
    main_ = std::make_unique<frmMain>(Shared);
    main_->show();
    Settle();
  }

  int Index(std::size_t size) { return static_cast<int>(Random.Next() * static_cast<double>(size)); }

  template <class T>
  T Any(const std::vector<T>& choices)
  {
    return choices[static_cast<std::size_t>(Index(choices.size()))];
  }

  static std::vector<ChildWindow*> OpenChildren()
  {
    std::vector<ChildWindow*> windows;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* window = dynamic_cast<ChildWindow*>(widget);
      if (window != nullptr && window->isVisible()) {
        windows.push_back(window);
      }
    }
    std::ranges::sort(windows, {}, [](const ChildWindow* window) { return window->objectName(); });
    return windows;
  }

  void ChooseEntry()
  {
    std::vector<QAction*> open;
    for (const char* name : {"mnuProject", "mnuIGSF", "mnuITSF", "mnuSG", "mnuStats", "mnuSigD", "mnuSigV",
                             "mnuAbout", "mnuEIC", "mnuMH1", "mnuSRS", "mnuMask", "mnuSHowMap"}) {
      auto* entry = main_->findChild<QAction*>(name);
      if (entry->isEnabled()) {
        open.push_back(entry);
      }
    }
    Any(open)->trigger();
  }

  /// Fills the window in as its purpose wants it, and lets its main button follow.
  void GoOn(ChildWindow& window)
  {
    const std::string name = window.objectName().toStdString();
    if (name == "frmProject") {
      auto* list = window.findChild<QWidget*>("List1");
      QTest::keyClick(list, Qt::Key_Home);
      QTest::keyClick(list, Qt::Key_Space);
      auto* code = window.findChild<QLineEdit*>("Text3");
      code->selectAll();
      QTest::keyClicks(code, "ab12");
    } else if (name == "frmMask") {
      QTest::keyClicks(window.findChild<QLineEdit*>("Text1"),
                       QString::number(static_cast<int>(Random.Next() * 110)));
    } else if (name == "frmStructure") {
      const bool transect = window.findChild<QWidget*>("Label5")->isVisible();
      const auto file = Directory / (transect ? "transect.txt" : "grid.txt");
      window.findChild<QLineEdit*>("Text3")->setText(QString::fromStdString(file.string()));
      window.findChild<QAbstractButton*>("Check2")->setChecked(true);
      window.findChild<QAbstractButton*>("Check1")->setChecked(false);
    }
    QTest::keyClick(&window, Qt::Key_Return);
  }

  std::unique_ptr<frmMain> main_;
  bool ended_ = false;
  int designs_ = 0;
};

TEST_P(RandomWalk, WindowsAgreeWithTheRecord)
{
  constexpr int FewestSteps = 600;
  constexpr int MostSteps = 6000;
  for (int step = 0; step < MostSteps && (step < FewestSteps || Designs == 0) && !HasFailure(); ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    Step();
    ExpectAgreement();
  }
  EXPECT_GE(Designs, 1) << "the walk is to come far";
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalk, testing::Values(2, 3));

}  // namespace
}  // namespace veln
