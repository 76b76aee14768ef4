// Windows opened, used and closed at random, as far as the menus allow: after every step they agree with the
// record.

#include "desktop/design/frm_d_list.h"
#include "desktop/design/frm_mask.h"
#include "desktop/design/frm_parse.h"
#include "desktop/design/frm_srs.h"
#include "desktop/design/frm_srs_opt.h"
#include "desktop/desktop_fixture.h"
#include "desktop/program/child_window.h"
#include "desktop/signal/frm_sig_decorr.h"
#include "desktop/survey/frm_structure.h"
#include "support/surveys.h"

#include <QAbstractButton>
#include <QScrollBar>
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
    std::vector<ChildWindow*> windows = OpenWindows();
    if (kind < 0.005) {
      main_->close();
    } else if (windows.empty() || kind < 0.3) {
      ChooseEntry();
    } else if (kind < 0.34) {
      QTest::keyClick(&*Any(windows), Random.Next() < 0.5 ? Qt::Key_Escape : Qt::Key_F1);
    } else if (kind < 0.38) {
      Any(windows)->close();
    } else if (kind < 0.42) {
      ChooseInWindow(*Any(windows));
    } else if (kind < 0.7) {
      GoOn(*Any(windows));
    } else {
      ClickSomething(*Any(windows));
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
    const std::vector<ChildWindow*> windows = OpenWindows();
    for (const ChildWindow* window : windows) {
      const std::string name = window->objectName().toStdString();
      EXPECT_TRUE(!window->Gate() || state.Menu.IsEnabled(*window->Gate())) << name;
      EXPECT_EQ(std::ranges::count_if(
                    windows,
                    [&name](const ChildWindow* other) { return other->objectName().toStdString() == name; }),
                1)
          << name;
    }
    if (const auto* structure = Shared.Find<frmStructure>()) {
      const auto checked = [structure](const char* name) {
        return structure->findChild<QAbstractButton*>(name)->isChecked();
      };
      EXPECT_NE(checked("Check3"), checked("Check4"));
      EXPECT_NE(checked("Option1"), checked("Option2"));
      EXPECT_EQ(structure->findChild<QWidget*>("Text2")->isVisible(), checked("Check2"));
    }
    if (const auto* decorrelation = Shared.Find<frmSigDecorr>()) {
      EXPECT_LE(decorrelation->findChild<QScrollBar*>("HScroll1")->value(),
                decorrelation->findChild<QScrollBar*>("HScroll2")->value());
      EXPECT_TRUE(!decorrelation->findChild<QWidget*>("Frame2")->isVisible() || state.DecorrDone);
    }
    ExpectDesignWindowsAgree();
    EXPECT_EQ(state.SiteStatus.size(), static_cast<std::size_t>(state.SurveySize));
  }

  void ExpectDesignWindowsAgree() const
  {
    const frmSRS* window = Shared.Find<frmSRS>();
    EXPECT_TRUE(window != nullptr ||
                (Shared.Find<frmParse>() == nullptr && Shared.Find<frmDList>() == nullptr &&
                 Shared.Find<frmSRSOpt>() == nullptr));
    const bool finished = window != nullptr && window->Form().Finished;
    EXPECT_EQ(std::ranges::count(Shared.State.SiteStatus, site_status::Candidate) > 0, finished);
    if (window == nullptr) {
      return;
    }
    const SrsForm& form = window->Form();
    const auto checked = [window](const char* name) {
      return window->findChild<QAbstractButton*>(name)->isChecked();
    };
    EXPECT_EQ(window->findChild<QWidget*>("Command4")->isVisible(), finished);
    EXPECT_EQ(window->findChild<QWidget*>("Frame1")->isEnabled(), !finished);
    EXPECT_EQ(window->findChild<QWidget*>("HScroll1")->isVisible(), form.Check1);
    EXPECT_TRUE(checked("Option1") == (form.Size == DesignSize::Limited) &&
                checked("Option2") == (form.Size == DesignSize::Standard));
    EXPECT_TRUE(checked("Check1") == form.Check1 && checked("Check2") == form.Check2 &&
                checked("Check3") == form.Check3);
    EXPECT_TRUE(form.Check3 || Shared.Find<frmParse>() == nullptr);
    EXPECT_EQ(window->findChild<QLabel*>("LblDN")->text().toInt(), Shared.State.DesignCount + 1);
    EXPECT_EQ(window->findChild<QLabel*>("LblMS")->text().toStdString(), form.LblMS);
    EXPECT_EQ(window->findChild<QLineEdit*>("Text1")->text().toStdString(), form.Text1());
  }

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
    Shared.State.ProgramDir = Directory.Path();
    Shared.State.InputFilePath = Directory.Path().string();
    main_ = std::make_unique<frmMain>(Shared);
    main_->show();
    Settle();
  }

  template <class T>
  T Any(const std::vector<T>& choices)
  {
    return choices[static_cast<std::size_t>(Random.Next() * static_cast<double>(choices.size()))];
  }

  static std::vector<ChildWindow*> OpenWindows()
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

  /// Chooses from the menus of a window that has its own, and moves about in its plot.
  void ChooseInWindow(const ChildWindow& window)
  {
    std::vector<QAction*> open;
    for (auto* entry : window.findChildren<QAction*>()) {
      const bool choice = entry->isEnabled() && entry->menu() == nullptr && !entry->isSeparator();
      if (choice && !entry->objectName().isEmpty() && entry->objectName() != "printPreview") {
        open.push_back(entry);
      }
    }
    if (!open.empty()) {
      Any(open)->trigger();
    }
    if (auto* plot = window.findChild<QWidget*>("PlotBox")) {
      QTest::keyClick(plot, Any(std::vector{Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Left, Qt::Key_Home}));
      QTest::mouseMove(plot, {qRound(plot->width() * Random.Next()), qRound(plot->height() * Random.Next())});
    }
  }

  void ClickSomething(ChildWindow& window)
  {
    if (window.findChild<QMenuBar*>() != nullptr && Random.Next() < 0.8) {
      ChooseInWindow(window);
      return;
    }
    std::vector<QAbstractButton*> buttons;
    for (auto* button : window.findChildren<QAbstractButton*>()) {
      if (button->isVisible() && button->isEnabled() && !button->objectName().isEmpty()) {
        buttons.push_back(button);
      }
    }
    if (!buttons.empty()) {
      Any(buttons)->click();
    }
    for (auto* bar : window.findChildren<QScrollBar*>()) {
      if (bar->objectName().startsWith("HScroll")) {
        QTest::keyClick(bar, Any(std::vector{Qt::Key_Left, Qt::Key_Right, Qt::Key_PageUp, Qt::Key_End}));
      }
    }
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
  constexpr int MostSteps = 6000;  // timers of the windows make some walks longer than others
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
