#include "desktop/workspace/frm_about.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/text_roles.h"
#include "workspace/version.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace veln {

namespace {

constexpr double TitleScale = 1.8;

QString AboutText()
{
  return QString(
             "VELN: soil sampling plans from ground-conductivity surveys.\n"
             "\n"
             "Maker and author: Norvane Laboratory\n"
             "Licence: MIT\n"
             "Windows by Qt %1")
      .arg(qVersion());
}

}  // namespace

frmAbout::frmAbout(Program& program, QWidget* parent)
    : ChildWindow(program, parent, {Name, "About VELN-QTRD", {1000, 750}, "", std::nullopt})
{
  QLabel* title = MakeText(this, "LblTitle", ProgramTitle);
  QFont font = title->font();
  font.setPointSizeF(font.pointSizeF() * TitleScale);
  title->setFont(font);
  SetRole(*title, TextRole::Maker);
  QLabel* version = MakeText(this, "LblVersion", QString("Version  %1").arg(ProgramVersion));
  QLabel* text = MakeText(this, "LblAbout", AboutText());
  for (QLabel* label : {title, version, text}) {
    label->setWordWrap(false);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  }
  QPushButton* ok = MakeButton(this, "Command1", "&OK", " return to main program menu ");
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, [this] { Unload(); });

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(LargeGap, LargeGap, LargeGap, WindowMargin);
  layout->setSpacing(SmallGap);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addWidget(title);
  layout->addWidget(version);
  layout->addSpacing(SmallGap);
  layout->addWidget(text);
  layout->addSpacing(LargeGap);
  layout->addWidget(ok, 0, Qt::AlignRight);
}

}  // namespace veln
