#include "desktop/workspace/frm_help.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "desktop/program/help_request.h"
#include "forms/output_view.h"

#include <QShortcut>
#include <QTextBrowser>

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
    : ChildWindow(program, parent, {Name, "VELN-QTRD OnLine Help"})
{
  text_ = new HelpText(this);
  text_->setObjectName("RTB1");
  text_->setAccessibleName("Help document");
  text_->setOpenLinks(false);
  text_->document()->setDocumentMargin(WindowMargin);
  SetColumn(
      *this,
      {{text_, 1},
       ButtonRow({nullptr, MakeButton(this, "Command1", "&Print this Help File", "", [this] { Print(); }),
                  MakeButton(this, "Command2", "&Return to VELN", "", Leaves())})},
      WindowMargin);
  connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, this, [this] { Print(); });
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
