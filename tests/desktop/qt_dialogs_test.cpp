#include "desktop/program/qt_dialogs.h"

#include "desktop/desktop_fixture.h"

#include <QFileDialog>
#include <QMessageBox>

namespace veln {
namespace {

/// Looks at the dialog that opens next, presses a key in it, and tells what it looked like.
template <class Box>
std::string Answer(Qt::Key key, const std::function<std::string(Box&)>& look,
                   const std::function<void()>& ask)
{
  std::string seen = "nothing opened";
  QTimer::singleShot(0, [&] {
    auto* box = dynamic_cast<Box*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    seen = look(*box);
    QTest::keyClick(box, key);
  });
  ask();
  return seen;
}

std::string Look(QMessageBox& box)
{
  return std::to_string(box.icon()) + " " + std::to_string(box.textFormat()) + " " +
         box.windowTitle().toStdString() + ": " + box.text().toStdString();
}

TEST(QtDialogs, MessagesArePlainTextWithTheIconOfTheirKind)
{
  QtDialogs dialogs;
  const std::string text = "<b>R&D</b> file\nis gone";
  const std::string plain = " " + std::to_string(Qt::PlainText) + " VELN-QTRD: " + text;
  EXPECT_EQ(Answer<QMessageBox>(Qt::Key_Return, Look, [&] { dialogs.Inform(text); }),
            std::to_string(QMessageBox::Information) + plain);
  EXPECT_EQ(Answer<QMessageBox>(Qt::Key_Return, Look, [&] { dialogs.Warn(text); }),
            std::to_string(QMessageBox::Warning) + plain);
}

TEST(QtDialogs, EnterAnswersNoWhereYesLosesSomething)
{
  QtDialogs dialogs;
  for (const auto& [question, yes] :
       {std::pair{Question::UseFieldAgain, false}, std::pair{Question::WriteTransitionFile, true},
        std::pair{Question::ScoreDesigns, true}, std::pair{Question::TranslateForGood, false},
        std::pair{Question::ReplaceFile, false}, std::pair{Question::Exit, false},
        std::pair{Question::ExitWithoutDesigns, false}}) {
    bool answer = !yes;
    Answer<QMessageBox>(Qt::Key_Return, Look, [&] { answer = dialogs.Ask(question, "Sure?"); });
    EXPECT_EQ(answer, yes) << static_cast<int>(question);
  }
}

TEST(QtDialogs, FileDialogOffersTheQuestionsFiles)
{
  const TemporaryDirectory directory;
  WriteText(directory / "a.txt", "");
  QtDialogs dialogs;
  const FileQuestion question{
      "File View", {{"texts", "*.txt"}, {"all", "*"}}, directory.Path(), "a.txt", true};
  std::optional<std::filesystem::path> chosen;
  const std::string seen = Answer<QFileDialog>(
      Qt::Key_Return,
      [](QFileDialog& dialog) {
        return dialog.windowTitle().toStdString() + " " + dialog.nameFilters().join("|").toStdString() + " " +
               std::to_string(dialog.fileMode());
      },
      [&] { chosen = dialogs.ShowOpen(question); });
  EXPECT_EQ(seen, "File View texts (*.txt)|all (*) " + std::to_string(QFileDialog::ExistingFile));
  EXPECT_EQ(chosen, directory / "a.txt");
  Answer<QFileDialog>(
      Qt::Key_Escape, [](QFileDialog&) { return ""; }, [&] { chosen = dialogs.ShowOpen(question); });
  EXPECT_EQ(chosen, std::nullopt);
}

}  // namespace
}  // namespace veln
