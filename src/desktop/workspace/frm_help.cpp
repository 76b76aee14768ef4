#include "desktop/workspace/frm_help.h"

#include "desktop/parts/controls.h"
#include "desktop/program/help_request.h"
#include "forms/output_view.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace veln {

namespace {

/// Opens at the size of a page.
class HelpText : public QTextBrowser {
 public:
  explicit HelpText(QWidget* parent) : QTextBrowser(parent) {}

  [[nodiscard]] QSize sizeHint() const override
  {
    constexpr int Columns = 105;
    constexpr int Lines = 36;
    return {fontMetrics().averageCharWidth() * Columns, fontMetrics().lineSpacing() * Lines};
  }
};

}  // namespace

frmHelp::frmHelp(Program& program, QWidget* parent)
    : ChildWindow(program, parent, {Name, "VELN-QTRD OnLine Help", {1000, 750}, "", std::nullopt})
{
  text_ = new HelpText(this);
  text_->setObjectName("RTB1");
  text_->setAccessibleName("Help document");
  text_->setOpenLinks(false);
  text_->document()->setDocumentMargin(WindowMargin);
  QPushButton* print = MakeButton(this, "Command1", "&Print this Help File", "");
  QPushButton* back = MakeButton(this, "Command2", "&Return to VELN", "");
  back->setDefault(true);
  connect(print, &QPushButton::clicked, this, [this] { Print(); });
  connect(back, &QPushButton::clicked, this, [this] { Unload(); });
  connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, this, [this] { Print(); });

  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(SmallGap);
  buttons->addStretch();
  buttons->addWidget(print);
  buttons->addWidget(back);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(WindowMargin);
  layout->addWidget(text_, 1);
  layout->addLayout(buttons);
}

void frmHelp::ShowDocument(const HelpDocument& document)
{
  content_ = document.Content;
  text_->setHtml(ToQt(RichTextToHtml(document.Text)));
}

void frmHelp::Print()
{
  Shared().Try([this] { PrintHelpDocument(State(), content_, Shared().Ask()); });
}

void RequestHelp(Program& program, const std::string& document)
{
  program.Try([&] {
    const HelpDocument help = LoadHelpDocument(program.State, document, program.Ask());
    if (auto* window = program.Show<frmHelp>()) {
      window->ShowDocument(help);
    }
  });
}

}  // namespace veln
