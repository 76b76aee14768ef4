// What holds of every window: what it shows and offers, what each control does, its layout, names for a
// screen reader, the way through by Tab, and keys without a clash.

#include "desktop/openings.h"
#include "desktop/program/child_window.h"
#include "desktop/shown.h"

#include <QAccessible>
#include <QClipboard>
#include <QPrinter>

namespace veln {
namespace {

std::vector<std::string> DataLines(const char* name)
{
  std::vector<std::string> lines;
  std::istringstream text(ReadText(std::filesystem::path(VELN_TEST_DATA) / name));
  for (std::string line; std::getline(text, line);) {
    lines.push_back(line);
  }
  return lines;
}

/// What a data file tells at its head.
std::vector<std::string> HeadOf(const char* name)
{
  std::vector<std::string> lines = DataLines(name);
  lines.erase(std::ranges::find_if(lines, [](const std::string& line) { return !line.starts_with('#'); }),
              lines.end());
  return lines;
}

/// Compares with a data file line by line. What was found is left in the working directory, to be read and
/// put in its place where a change was meant.
void ExpectLines(const std::vector<std::string>& found, const char* name)
{
  const std::vector<std::string> given = DataLines(name);
  if (found == given) {
    return;
  }
  std::string text;
  for (const std::string& line : found) {
    text += line + "\n";
  }
  WriteText(std::filesystem::current_path() / name, text);
  std::size_t first = 0;
  while (first < found.size() && first < given.size() && found[first] == given[first]) {
    ++first;
  }
  const auto from = [first](const std::vector<std::string>& lines) {
    constexpr std::size_t Told = 8;
    std::string told;
    for (std::size_t i = first; i < lines.size() && i < first + Told; ++i) {
      told += "\n  " + lines[i];
    }
    return told;
  };
  ADD_FAILURE() << name << " line " << first + 1 << "\ntells:" << from(given) << "\nfound:" << from(found);
}

class AllWindows : public DesktopTest {
 protected:
  AllWindows()
  {
    Shared.ChoosePrinter = [this](QPrinter&, QWidget*) {
      Asked.Said.emplace_back("chooses a printer");
      return false;
    };
    Shared.ChooseFile = [this](const QString& title, const std::filesystem::path& file,
                               const QString& filter) {
      Asked.Said.push_back("saves: " + title.toStdString() + " [" + file.filename().string() + "] " +
                           filter.toStdString());
      return saveTo_.empty() ? std::nullopt : std::optional(Directory / std::exchange(saveTo_, {}));
    };
    Asked.Always = true;
  }

  /// Opens a window as if nothing had been before.
  void Open(const Opening& opening)
  {
    main_.reset();
    CloseWindows();
    std::filesystem::remove_all(Directory / "data");
    std::filesystem::create_directories(Directory / "data" / "demo");
    std::filesystem::create_directories(Directory / "data" / "farm");
    WriteText(Directory / "helpdocs" / "hdoc14.rtf", R"({\rtf1 The first\par})");
    WriteText(Directory / "helpdocs" / "hdoc04.rtf", R"({\rtf1 The second \b one\b0\par})");
    WriteText(Directory / "helpdocs" / "hdoc16.rtf", R"({\rtf1 {cut)");
    Places.clear();
    Shared.Field = {};
    Shared.State.InputFilePath = Directory.Path().string();
    Shared.State.TextEditorPath = " write";
    Ended = 0;
    Set(opening.State);
    if (opening.Name() == "frmMain") {
      main_ = std::make_unique<frmMain>(Shared);
      main_->show();
    } else {
      opening.Show(Shared);
    }
    Settle();
    Asked.Said.clear();
    Asked.Questions.clear();
    Asked.Always = true;
    ASSERT_NE(Window(opening.Name().c_str()), nullptr);
    Window(opening.Name().c_str())->activateWindow();
  }

  void Walk(const std::function<void(QWidget&)>& look)
  {
    for (const Opening& opening : Openings()) {
      SCOPED_TRACE(opening.Title);
      Open(opening);
      look(*Window(opening.Name().c_str()));
    }
  }

  /// A text on one line, with nothing in it that differs from machine to machine.
  [[nodiscard]] std::string InLine(const std::string& told) const
  {
    std::string text = QString::fromStdString(told).replace('\n', "\\n").toStdString();
    for (const auto& [machine, word] :
         {std::pair{Directory.Path().string(), "DIR"}, std::pair{std::string(qVersion()), "VERSION"},
          std::pair{std::filesystem::current_path().string(), "HERE"}}) {
      for (std::size_t at = text.find(machine); at != std::string::npos; at = text.find(machine)) {
        text.replace(at, machine.size(), word);
      }
    }
    return text;
  }

  using AllShown = std::map<std::string, std::map<std::string, Properties>>;
  static AllShown ShownByAll()
  {
    AllShown all;
    for (const auto& [name, window] : OpenWindows()) {
      all[name] = ShownBy(*window);
    }
    return all;
  }

  [[nodiscard]] std::set<std::string> FilesOfProject() const
  {
    const auto files = ListFiles(Directory / "data" / "farm");
    return {files.begin(), files.end()};
  }

  /// The middle of a cell ("2 3") of a table, in its viewport.
  static QPoint PlaceOf(QTableWidget& table, const std::string& told)
  {
    const int column = std::stoi(told.substr(2));
    return table.visualItemRect(table.item(std::stoi(told), column)).center();
  }

  /// An action of a scene.
  void Do(const std::string& told)
  {
    std::istringstream words(told);
    std::string verb;
    std::string window;
    std::string control;
    words >> verb >> window >> control;
    std::string rest;
    std::getline(words, rest);
    rest.erase(0, 1);
    if (verb == "click") {
      Click(window.c_str(), control.c_str());
    } else if (verb == "choose") {
      Control<QAction>(window.c_str(), control.c_str()).trigger();
    } else if (verb == "key") {
      QWidget& widget = control == "-" ? *Window(window.c_str()) : Control(window.c_str(), control.c_str());
      const QKeyCombination keys = QKeySequence(QString::fromStdString(rest))[0];
      widget.setFocus();
      QTest::keyClick(&widget, keys.key(), keys.keyboardModifiers());
    } else if (verb == "type") {
      Control(window.c_str(), control.c_str()).setFocus();
      QTest::keyClicks(&Control(window.c_str(), control.c_str()), QString::fromStdString(rest));
    } else if (verb == "close") {
      Window(window.c_str())->close();
    } else if (verb == "tick") {
      HandTimers::Tick(*Window(window.c_str()), std::stoi(control));
    } else if (verb == "yes" || verb == "no") {
      Asked.Always = verb == "yes";
    } else if (verb == "file") {
      Asked.ChooseFile(Directory / window);
    } else if (verb == "save") {
      saveTo_ = window;
    } else if (verb == "cell") {
      QTest::mouseClick(Control<QTableWidget>(window.c_str(), control.c_str()).viewport(), Qt::LeftButton, {},
                        PlaceOf(Control<QTableWidget>(window.c_str(), control.c_str()), rest));
    } else if (verb == "sort") {
      QHeaderView* header = Control<QTableWidget>(window.c_str(), control.c_str()).horizontalHeader();
      const int left = header->sectionViewportPosition(std::stoi(rest));
      QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, {left + 5, header->height() / 2});
    } else if (verb == "block") {
      std::filesystem::create_directory(Directory / window);
    } else if (verb == "free") {
      std::filesystem::remove(Directory / window);
    } else {
      ADD_FAILURE() << "no action: " << told;
    }
  }

  /// What an action changed, told in lines.
  std::vector<std::string> Effects(const AllShown& before, const SurveyState& state,
                                   const std::set<std::string>& files)
  {
    std::vector<std::string> lines = Asked.Said;
    for (const FileQuestion& question : Asked.Questions) {
      lines.push_back("offers " + question.InitDir.string());
      for (const FileFilter& filter : question.Filter) {
        lines.back() += ", " + filter.Text;
      }
    }
    const AllShown after = ShownByAll();
    for (const auto& [window, controls] : before) {
      if (!after.contains(window)) {
        lines.push_back("closes " + window);
      }
    }
    for (const auto& [window, controls] : after) {
      if (!before.contains(window)) {
        lines.push_back("opens " + window);
        continue;
      }
      for (const std::string& line : Differences(before.at(window), controls)) {
        if (!line.ends_with(" focus: -")) {
          lines.push_back(window + " " + line);
        }
      }
    }
    for (const auto& [changed, what] :
         {std::pair{!(Shared.State == state), "changes the record"}, std::pair{Ended > 0, "ends the program"},
          std::pair{!QGuiApplication::clipboard()->image().isNull(), "copies a picture"}}) {
      if (changed) {
        lines.emplace_back(what);
      }
    }
    if (const QString copied = QGuiApplication::clipboard()->text(); !copied.isEmpty()) {
      lines.push_back("copies " + copied.toStdString());
    }
    constexpr std::size_t Short = 700;
    for (const std::string& file : FilesOfProject()) {
      const std::filesystem::path path = Directory / "data" / "farm" / file;
      if (!files.contains(file) && std::filesystem::is_regular_file(path)) {
        const std::string content = ReadText(path);
        lines.push_back("writes " + file + (content.size() < Short ? ": " + content : ""));
      }
    }
    return lines;
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

 private:
  std::string saveTo_;  // the file to be chosen next
  std::unique_ptr<frmMain> main_;
};

TEST_F(AllWindows, ShowWhatIsGiven)
{
  std::vector<std::string> lines = HeadOf("windows.txt");
  for (const Opening& opening : Openings()) {
    SCOPED_TRACE(opening.Title);
    Open(opening);
    lines.push_back(opening.Title);
    for (const auto& [control, shown] : ShownBy(*Window(opening.Name().c_str()))) {
      lines.push_back(InLine("  " + control + ": " + InWords(shown)));
    }
    ExpectGoodLayout(*Window(opening.Name().c_str()));
    ExpectWindowsShowTheirForms(Shared);
  }
  ExpectLines(lines, "windows.txt");
}

TEST_F(AllWindows, EveryControlDoesWhatItSays)
{
  std::vector<std::string> lines = HeadOf("actions.txt");
  for (const Opening& opening : Openings()) {
    SCOPED_TRACE(opening.Title);
    lines.push_back(opening.Title);
    Open(opening);
    for (const auto& [name, act] : ActionsOf(*Window(opening.Name().c_str()))) {
      Open(opening);
      const AllShown before = ShownByAll();
      const SurveyState state = Shared.State;
      const auto files = FilesOfProject();
      QGuiApplication::clipboard()->clear();
      act(*Window(opening.Name().c_str()));
      Settle();
      for (const std::string& effect : Effects(before, state, files)) {
        if (!effect.ends_with(" " + name + " focus: yes")) {
          lines.push_back(InLine("  " + name + " > " + effect));
        }
      }
      ExpectWindowsShowTheirForms(Shared);
      for (const auto& [other, window] : OpenWindows()) {
        ExpectGoodLayout(*window);
      }
    }
  }
  ExpectLines(lines, "actions.txt");
}

TEST_F(AllWindows, ScenesGoAsTold)
{
  const std::vector<Opening> openings = Openings();
  std::vector<std::string> lines;
  for (const std::string& line : DataLines("scenes.txt")) {
    if (line.starts_with("scene ")) {
      const auto opening = std::ranges::find(openings, line.substr(6), &Opening::Title);
      ASSERT_NE(opening, openings.end()) << line;
      lines.push_back(line);
      Open(*opening);
    } else if (line.starts_with("- ")) {
      SCOPED_TRACE(line);
      lines.push_back(line);
      const AllShown before = ShownByAll();
      const SurveyState state = Shared.State;
      Asked.Said.clear();
      Asked.Questions.clear();
      QGuiApplication::clipboard()->clear();
      const auto files = FilesOfProject();
      Do(line.substr(2));
      Settle();
      for (const std::string& effect : Effects(before, state, files)) {
        lines.push_back(InLine("  " + effect));
      }
      ExpectWindowsShowTheirForms(Shared);
      for (const auto& [name, window] : OpenWindows()) {
        ExpectGoodLayout(*window);
      }
    } else if (line.empty() || line.starts_with('#')) {
      lines.push_back(line);
    }
  }
  ExpectLines(lines, "scenes.txt");
}

/// A screen reader's own actions do what a click does.
TEST_F(AllWindows, ChoicesAreObeyedHoweverTheyAreMade)
{
  for (const Opening& opening : Openings()) {
    Open(opening);
    std::vector<QString> choices;
    for (const auto* button : Window(opening.Name().c_str())->findChildren<QAbstractButton*>()) {
      if (button->isCheckable() && button->isVisible() && button->isEnabled()) {
        choices.push_back(button->objectName());
      }
    }
    for (const QString& choice : choices) {
      SCOPED_TRACE(opening.Title + " " + choice.toStdString());
      Open(opening);
      auto* button = Window(opening.Name().c_str())->findChild<QAbstractButton*>(choice);
      QAccessibleInterface* face = QAccessible::queryAccessibleInterface(button);
      face->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
      Settle();
      ExpectWindowsShowTheirForms(Shared);
    }
  }
}

/// The record may have gone beyond a window's step by way of another one.
TEST_F(AllWindows, WindowsWhoseStepIsClosedClose)
{
  int closed = 0;
  for (const Opening& opening : Openings()) {
    Open(opening);
    const auto* window = dynamic_cast<ChildWindow*>(Window(opening.Name().c_str()));
    if (window != nullptr && window->Gate()) {
      ++closed;
      Shared.State.Menu = {};
      Shared.State.Menu.Apply(WorkflowEvent::SurveyImported);
      if (window->Gate() != MenuEntry::mnuProject) {
        Shared.State.Menu = {};
      }
      Shared.Changed();
      EXPECT_EQ(Window(opening.Name().c_str()), nullptr) << opening.Title;
    }
  }
  EXPECT_GE(closed, 9);
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

TEST_F(AllWindows, EveryButtonAndEveryEntryHasAKeyOfItsOwn)
{
  Walk([](QWidget& window) {
    std::map<const QObject*, std::map<QString, std::string>> keys;  // of the window, and of each menu
    const auto add = [&keys](const QObject* group, const QString& caption, const std::string& name) {
      const QString key = QKeySequence::mnemonic(caption).toString();
      if (!key.isEmpty()) {
        EXPECT_TRUE(keys[group].emplace(key, name).second)
            << key.toStdString() << " is the key of " << keys[group][key] << " and of " << name;
      }
      return !key.isEmpty();
    };
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
      if (!button->objectName().isEmpty() && !button->objectName().startsWith("qt_")) {
        EXPECT_TRUE(add(&window, button->text(), NameOf(*button))) << NameOf(*button) << " has no key";
      }
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
      if (label->buddy() != nullptr) {
        add(&window, label->text(), NameOf(*label));
      }
    }
    for (const auto* menu : window.findChildren<QMenu*>()) {
      for (const QAction* entry : menu->actions()) {
        EXPECT_TRUE(entry->objectName().isEmpty() ||
                    add(menu, entry->text(), entry->objectName().toStdString()));
      }
    }
  });
}

}  // namespace
}  // namespace veln
