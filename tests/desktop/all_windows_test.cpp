// What holds of every window: names for a screen reader, the way through by Tab, and keys without a clash.

#include "desktop/design/frm_d_list.h"
#include "desktop/design/frm_mask.h"
#include "desktop/design/frm_parse.h"
#include "desktop/design/frm_srs.h"
#include "desktop/design/frm_srs_opt.h"
#include "desktop/desktop_fixture.h"
#include "desktop/graphics/frm_igc.h"
#include "desktop/graphics/frm_legend.h"
#include "desktop/graphics/frm_pct.h"
#include "desktop/graphics/frm_site_map.h"
#include "desktop/graphics/overlay_chooser.h"
#include "desktop/graphics/picture_dialog.h"
#include "desktop/graphics_fixture.h"
#include "desktop/signal/frm_list.h"
#include "desktop/signal/frm_sig_decorr.h"
#include "desktop/signal/frm_sig_val.h"
#include "desktop/survey/frm_basic_stats.h"
#include "desktop/survey/frm_out_fd.h"
#include "desktop/survey/frm_structure.h"
#include "desktop/workspace/frm_about.h"
#include "desktop/workspace/frm_file_io.h"
#include "desktop/workspace/frm_help.h"
#include "desktop/workspace/frm_project.h"
#include "support/surveys.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QHeaderView>
#include <QRadioButton>

namespace veln {
namespace {

RawSurvey SurveyWithOutlier()
{
  RawSurvey survey = TransectSurvey(5, 20);
  survey.Signal1[7] = 2000;
  return survey;
}

/// A window and the record in which it opens.
struct Opening {
  const char* Name;
  SurveyState State;
  std::function<void(Program&)> Show;
};

/// The graphics window with a plot in it.
void Draw(Program& program, GraphEntry entry)
{
  program.Show<frmSvyGraph>()->Act(
      [&](SurveyGraph& graph) { SelectGraph(graph, program.State, entry, program.Dither); });
}

template <class Form>
void ShowPlain(Program& program)
{
  program.Show<Form>();
}

std::vector<Opening> Openings()
{
  const SurveyState imported = ImportedSurvey(SurveyWithOutlier());
  const SurveyState decorrelated = DecorrelatedSurvey(SurveyWithOutlier());
  SurveyState saved = AcceptedSurvey(SurveyWithOutlier());
  saved.ManualDesignDone = true;
  const SurveyState accepted = AcceptedSurvey(TransectSurvey(20, 20));
  const SurveyState designed = SurveyWithDesigns();
  return {
      {"frmProject", {}, ShowPlain<frmProject>},
      {"frmFileIO", {}, ShowPlain<frmFileIO>},
      {"frmAbout", {}, ShowPlain<frmAbout>},
      {"frmHelp", {}, ShowPlain<frmHelp>},
      {"frmStructure", NamedState(),
       [](Program& program) { program.Show<frmStructure>()->SetSurveyType(true); }},
      {"frmBasicStats", imported, ShowPlain<frmBasicStats>},
      {"frmSigDecorr", imported, ShowPlain<frmSigDecorr>},
      {"frmSigVal", decorrelated, ShowPlain<frmSigVal>},
      {"frmList", decorrelated, ShowPlain<frmList>},
      {"frmOutFD", saved, ShowPlain<frmOutFD>},
      {"frmMask", accepted, ShowPlain<frmMask>},
      {"frmSRS", accepted, ShowPlain<frmSRS>},
      {"frmParse", accepted,
       [](Program& program) {
         program.Show<frmSRS>();
         program.Show<frmParse>();
       }},
      {"frmDList", accepted, ShowPlain<frmDList>},
      {"frmSRSOpt", accepted,
       [](Program& program) {
         program.ShowWith<frmSRSOpt>([&](QWidget* main) { return new frmSRSOpt(program, main, {}); });
       }},
      {"frmSvyGraph", designed, [](Program& program) { Draw(program, GraphEntry::mnuHs1); }},
      {"frmLegend", designed,
       [](Program& program) {
         Draw(program, GraphEntry::mnuVs1);
         program.Show<frmLegend>();
       }},
      {"frmIGC", designed, ShowPlain<frmIGC>},
      {"frmPCT", designed, ShowPlain<frmPCT>},
      {"overlayChooser", designed,
       [](Program& program) {
         Draw(program, GraphEntry::mnuVs1);
         program.Show<OverlayChooser>();
       }},
      {"pictureDialog", designed,
       [](Program& program) {
         auto* owner = program.Show<frmSiteMap>();
         program.ShowWith<PictureDialog>(
             [&](QWidget*) { return new PictureDialog(program, owner, {}, "map"); });
       }},
      {"frmSiteMap", designed, ShowPlain<frmSiteMap>},
  };
}

class AllWindows : public DesktopTest {
 protected:
  /// Opens one window after the other, with every choice in it made that shows more, and walks it.
  void Walk(const std::function<void(QWidget&)>& look)
  {
    std::filesystem::create_directories(Directory / "data" / "farm");
    for (const Opening& opening : Openings()) {
      SCOPED_TRACE(opening.Name);
      Set(opening.State);
      opening.Show(Shared);
      Settle();
      ASSERT_NE(Window(opening.Name), nullptr);
      ASSERT_TRUE(QTest::qWaitFor([&opening] { return Window(opening.Name)->isVisible(); }));
      look(*Window(opening.Name));
      for (const char* more : {"Command5", "Check2", "Option2", "ChkEB1"}) {
        auto* button = Window(opening.Name)->findChild<QAbstractButton*>(more);
        if (button != nullptr) {
          button->click();
        }
      }
      look(*Window(opening.Name));
      delete Window(opening.Name);
    }
  }

  /// Whether a widget has the focus, or arrows lead to it from there: the options of a group are one stop.
  static bool IsReachedFrom(const QWidget& widget, const QWidget& focused)
  {
    const auto isOption = [](const QWidget& candidate) {
      const auto* option = dynamic_cast<const QRadioButton*>(&candidate);
      return option != nullptr && option->autoExclusive();
    };
    return &widget == &focused ||
           (isOption(widget) && isOption(focused) && widget.parentWidget() == focused.parentWidget());
  }

  /// The controls that can have the focus by Tab.
  static std::set<QWidget*> Stops(const QWidget& window)
  {
    std::set<QWidget*> stops;
    for (auto* widget : window.findChildren<QWidget*>()) {
      const bool stop = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr;
      if (stop && widget->isVisible() && widget->isEnabled() && widget->window() == &window) {
        stops.insert(widget);
      }
    }
    return stops;
  }

  static std::string NameOf(const QWidget& widget)
  {
    return widget.objectName().toStdString() + " (" + widget.metaObject()->className() + ")";
  }
};

TEST_F(AllWindows, EscClosesAndLeavesTheRecord)
{
  for (const Opening& opening : Openings()) {
    SCOPED_TRACE(opening.Name);
    Set(opening.State);
    opening.Show(Shared);
    Settle();
    const SurveyState before = Shared.State;
    QTest::keyClick(Window(opening.Name), Qt::Key_Escape);
    Settle();
    EXPECT_EQ(Window(opening.Name), nullptr);
    EXPECT_TRUE(Shared.State == before);
  }
}

/// The record may have gone beyond a window's step by way of another one.
TEST_F(AllWindows, WindowsWhoseStepIsClosedClose)
{
  for (const char* name :
       {"frmProject", "frmStructure", "frmBasicStats", "frmSigDecorr", "frmSigVal", "frmMask"}) {
    const std::vector<Opening> openings = Openings();
    const Opening& opening = *std::ranges::find(openings, std::string(name), &Opening::Name);
    Set(opening.State);
    opening.Show(Shared);
    EXPECT_NE(Window(name), nullptr) << name;
    Set(SurveyWithDesigns());
    EXPECT_EQ(Window(name), nullptr) << name;
  }
}

TEST_F(AllWindows, EveryControlHasAnAccessibleName)
{
  Walk([](QWidget& window) {
    for (QWidget* stop : Stops(window)) {
      QAccessibleInterface* face = QAccessible::queryAccessibleInterface(stop);
      ASSERT_NE(face, nullptr);
      EXPECT_NE(face->text(QAccessible::Name).trimmed(), "") << NameOf(*stop);
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
      // The toolkit tells the name of a combo box by its label alone.
      if (label->buddy() != nullptr && dynamic_cast<QComboBox*>(label->buddy()) == nullptr) {
        const QString caption = QString(label->text()).remove('&').remove(':').trimmed();
        EXPECT_EQ(QAccessible::queryAccessibleInterface(label->buddy())->text(QAccessible::Name), caption);
      }
    }
    for (auto* button : window.findChildren<QAbstractButton*>()) {
      const QString caption = QString(button->text()).remove('&').trimmed();
      if (!caption.isEmpty() && !button->objectName().isEmpty()) {
        EXPECT_EQ(button->accessibleName(), caption);
      }
      if (dynamic_cast<QRadioButton*>(button) != nullptr) {
        EXPECT_EQ(QAccessible::queryAccessibleInterface(button)->role(), QAccessible::RadioButton);
      }
    }
  });
}

TEST_F(AllWindows, TabReachesEveryControl)
{
  Walk([](QWidget& window) {
    std::set<QWidget*> left = Stops(window);
    const std::size_t steps = left.empty() ? 0 : 2 * left.size() + 2;
    if (!left.empty()) {
      (*left.begin())->setFocus();
    }
    for (std::size_t i = 0; i < steps; ++i) {
      std::erase_if(left, [&window](QWidget* stop) { return IsReachedFrom(*stop, *window.focusWidget()); });
      QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    for (const QWidget* widget : left) {
      ADD_FAILURE() << "not reached: " << NameOf(*widget);
    }
  });
}

TEST_F(AllWindows, EveryButtonHasAKeyOfItsOwn)
{
  Walk([](QWidget& window) {
    std::map<QString, std::string> keys;
    const auto add = [&keys](const QString& caption, const QWidget& widget) {
      const QString key = QKeySequence::mnemonic(caption).toString();
      if (!key.isEmpty()) {
        EXPECT_TRUE(keys.emplace(key, NameOf(widget)).second)
            << key.toStdString() << " is the key of " << keys[key] << " and of " << NameOf(widget);
      }
      return !key.isEmpty();
    };
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
      if (!button->objectName().isEmpty() && !button->objectName().startsWith("qt_")) {
        EXPECT_TRUE(add(button->text(), *button)) << NameOf(*button) << " has no key";
      }
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
      if (label->buddy() != nullptr) {
        add(label->text(), *label);
      }
    }
  });
}

TEST_F(AllWindows, NothingIsCutOffAtTheFirstOpening)
{
  Walk([](QWidget& window) {
    window.layout()->activate();
    for (const auto* label : window.findChildren<QLabel*>()) {
      if (label->isVisible() && label->wordWrap() && !label->text().isEmpty()) {
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << NameOf(*label);
      }
    }
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
      if (button->isVisible() && !button->objectName().isEmpty()) {
        EXPECT_GE(button->width(), button->minimumSizeHint().width()) << NameOf(*button);
      }
    }
  });
}

}  // namespace
}  // namespace veln
