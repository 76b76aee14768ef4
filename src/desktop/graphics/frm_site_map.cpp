#include "desktop/graphics/frm_site_map.h"

#include "desktop/graphics/picture_actions.h"
#include "desktop/graphics/picture_dialog.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/drawing_view.h"
#include "desktop/program/help_request.h"
#include "render/drawing_painter.h"
#include "toolkit/refusal.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPrinter>
#include <QVBoxLayout>

#include <array>

namespace veln {

namespace {

QAction* AddEntry(QMenu& menu, const char* name, const QString& caption, const QKeySequence& shortcut = {})
{
  QAction* action = menu.addAction(caption);
  action->setObjectName(name);
  action->setShortcut(shortcut);
  return action;
}

QMenu* AddMenu(QMenuBar& bar, const char* name, const QString& caption)
{
  QMenu* menu = bar.addMenu(caption);
  menu->menuAction()->setObjectName(name);
  return menu;
}

/// A drawing on the white paper that it lies on.
Drawing OnPaper(const Drawing& map)
{
  constexpr int Paper = 15;
  Drawing sheet = map;
  sheet.Marks.insert(sheet.Marks.begin(), BoxMark{{0, 0}, {1, 1}, {QBColor(Paper), 1}, true});
  return sheet;
}

}  // namespace

frmSiteMap::frmSiteMap(Program& program, QWidget* parent)
    : ChildWindow(program, parent,
                  {Name, " Sample Site Map Display", {1000, 750}, "hdoc18", MenuEntry::mnuSHowMap}),
      form_(LoadSiteMap(program.State))
{
  constexpr double TitleScale = 1.3;
  constexpr int SmallestMap = 520;
  title_ = MakeValueLabel(this, "lblSMT", "");
  QFont bold = title_->font();
  bold.setBold(true);
  bold.setPointSizeF(bold.pointSizeF() * TitleScale);
  title_->setFont(bold);
  title_->setAlignment(Qt::AlignCenter);
  map_ = new DrawingView(this);
  map_->setObjectName("MGrid");
  map_->setMinimumSize(SmallestMap, SmallestMap);
  map_->setFocusPolicy(Qt::StrongFocus);  // a screen reader comes to its description
  map_->setAccessibleName("Map of the sample sites");
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(SmallGap);
  layout->addWidget(title_);
  layout->addWidget(map_, 1);
  MakeMenus();
  Mirror();
}

void frmSiteMap::MakeMenus()
{
  auto* bar = new QMenuBar(this);
  MakeDesignMenus(*bar);
  MakePrintMenu(*bar);
  QMenu* help = AddMenu(*bar, "mnusubH", "&Help");
  connect(AddEntry(*help, "mnusubSSMHelp", "&Navigating the Map Display Menu"), &QAction::triggered, this,
          [this] { RequestHelp(Shared(), "hdoc18"); });
  QMenu* back = AddMenu(*bar, "mnusubR", "&Return");
  connect(AddEntry(*back, "mnusubRx", "&Close Map Display Window"), &QAction::triggered, this,
          [this] { Unload(); });
  layout()->setMenuBar(bar);
}

void frmSiteMap::MakeDesignMenus(QMenuBar& bar)
{
  QMenu* display = AddMenu(bar, "mnusubD", "&Display");
  QMenu* designs = display->addMenu("&SRS Designs");
  designs->menuAction()->setObjectName("mnusubSRS");
  designs->menuAction()->setEnabled(form_.mnusubSRS);
  for (int number = 1; number <= MaxDesigns; ++number) {
    const QString digit = QString::number(number);
    QAction* entry = AddEntry(*designs, ("mnusubRS" + digit).toUtf8(), "SRS Design &" + digit);
    entry->setEnabled(form_.mnusubRS.at(static_cast<std::size_t>(number) - 1));
    connect(entry, &QAction::triggered, this, [this, number] { ShowDesign(number); });
  }
  QMenu* custom = display->addMenu("&Custom Designs");
  custom->menuAction()->setObjectName("mnusubC");
  QAction* manual = AddEntry(*custom, "mnusubUGD", "&User Generated Design");
  manual->setEnabled(form_.mnusubUGD);
  connect(manual, &QAction::triggered, this, [this] { ShowDesign(ManualDesignNumber); });
}

void frmSiteMap::MakePrintMenu(QMenuBar& bar)
{
  QMenu* print = AddMenu(bar, "mnusubP", "&Print");
  connect(AddEntry(*print, "mnusubPrintD", "&Print currently displayed Sample Design", QKeySequence::Print),
          &QAction::triggered, this, [this] { Print(); });
  connect(AddEntry(*print, "mnusubSaveAsBit", "Save as &Bitmap"), &QAction::triggered, this,
          [this] { SaveAsBitmap(); });
  print->addSeparator();
  connect(AddEntry(*print, "savePicture", "Save p&icture...", QKeySequence::Save), &QAction::triggered, this,
          [this] { SavePicture(); });
  connect(AddEntry(*print, "copyPicture", "&Copy", QKeySequence::Copy), &QAction::triggered, this,
          [this] { Shared().Try([this] { CopyPicture(CurrentPicture()); }); });
}

void frmSiteMap::ShowDesign(int number)
{
  Shared().Try([&] { ShowDesignMap(form_, State(), number); });
  Mirror();
}

void frmSiteMap::Print()
{
  if (PrintOnePage(Shared(), this, [this](QPrinter& printer) { return PaintOn(printer); })) {
    Shared().Ask().Inform(MapSpooled);
  }
}

/// The title in 16 points, bold, a twentieth of the page's width from its corner; the map under it, four
/// fifths of the page's width wide.
bool frmSiteMap::PaintOn(QPrinter& printer) const
{
  constexpr double TitlePlace = 0.05;
  constexpr double MapTop = 0.1;
  constexpr double MapWidth = 0.8;
  constexpr int TitleFont = 16;
  QPainter painter;
  if (!painter.begin(&printer)) {
    return false;
  }
  const double width = printer.width();
  QFont font = painter.font();
  font.setPointSize(TitleFont);
  font.setBold(true);
  painter.setFont(font);
  painter.drawText(QPointF(TitlePlace * width, TitlePlace * width + painter.fontMetrics().ascent()),
                   ToQt(form_.lblSMT));
  const QRectF square(TitlePlace * width, MapTop * width, MapWidth * width, MapWidth * width);
  PaintDrawing(painter, paper_, FitDrawing(paper_, square));
  return painter.end();
}

void frmSiteMap::SaveAsBitmap()
{
  const std::filesystem::path bitmaps = State().ProgramDir / "bitmap";
  std::error_code ignored;
  const std::filesystem::path folder =
      std::filesystem::is_directory(bitmaps, ignored) ? bitmaps : OutputPath(State(), "").parent_path();
  auto file =
      Shared().ChooseFile("Save as Bitmap", folder / OutputName(State(), "map.bmp"), "Bitmap Files (*.bmp)");
  Shared().Try([&] {
    if (!file || file->empty()) {
      throw Refusal("No file name was given.");
    }
    veln::SavePicture(CurrentPicture(), PictureFormat::Bmp, static_cast<int>(SiteMapPixels), *file);
  });
}

void frmSiteMap::SavePicture()
{
  Shared().ShowWith<PictureDialog>(
      [this](QWidget* /*main*/) { return new PictureDialog(Shared(), this, CurrentPicture(), "map"); });
}

Picture frmSiteMap::CurrentPicture() const
{
  return {paper_, form_.lblSMT};
}

void frmSiteMap::Mirror()
{
  ShowValue(*title_, ToQt(form_.lblSMT));
  paper_ = OnPaper(form_.MGrid);
  map_->Show(paper_);
  QString sites;
  for (const TextMark& number : Only<TextMark>(form_.MGrid)) {
    sites += ToQt(number.Text);
  }
  map_->setAccessibleDescription(ToQt(form_.lblSMT) + (sites.isEmpty() ? "" : ": sites" + sites));
}

}  // namespace veln
