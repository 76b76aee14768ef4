#include "desktop/workspace/frm_about.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "desktop/parts/text_roles.h"
#include "workspace/version.h"

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
    : ChildWindow(program, parent, {Name, "About VELN-QTRD"})
{
  QLabel* title = MakeLine(this, "LblTitle", ProgramTitle);
  QFont font = title->font();
  font.setPointSizeF(font.pointSizeF() * TitleScale);
  title->setFont(font);
  SetRole(*title, TextRole::Maker);
  QLabel* version = MakeLine(this, "LblVersion", QString("Version  %1").arg(ProgramVersion));
  QLabel* text = MakeLine(this, "LblAbout", AboutText());
  for (QLabel* label : {title, version, text}) {
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  }
  SetColumn(
      *this,
      {title, version, LayoutItem::Gap(SmallGap), text, LayoutItem::Gap(LargeGap),
       ButtonRow({nullptr, MakeButton(this, "Command1", "&OK", " return to main program menu ", Leaves())})},
      SmallGap);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace veln
