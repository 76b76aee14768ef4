#include "desktop/graphics/frm_site_map.h"

#include "desktop/graphics/picture_actions.h"
#include "desktop/graphics/picture_dialog.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/drawing_view.h"
#include "desktop/parts/layout.h"
#include "desktop/program/help_request.h"
#include "desktop/program/print_page.h"
#include "render/drawing_painter.h"
#include "toolkit/refusal.h"

#include <QPainter>
#include <QPrinter>

#include <array>

namespace veln {

namespace {

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
    : FormWindow(program, parent, {Name, " Sample Site Map Display", "hdoc18", MenuEntry::mnuSHowMap},
                 LoadSiteMap(program.State))
{
  constexpr double TitleScale = 1.3;
  constexpr int SmallestMap = 520;
  title_ = MakeValueLabel(this, "lblSMT", "", Qt::AlignHCenter);
  QFont bold = title_->font();
  bold.setBold(true);
  bold.setPointSizeF(bold.pointSizeF() * TitleScale);
  title_->setFont(bold);
  map_ = new DrawingView(this);
  map_->setObjectName("MGrid");
  map_->setMinimumSize(SmallestMap, SmallestMap);
  map_->setFocusPolicy(Qt::StrongFocus);  // a screen reader comes to its description
  map_->setAccessibleName("Map of the sample sites");
  SetColumn(*this, {title_, {map_, 1}}, SmallGap);
  MakeMenus();
  Mirror();
}

void frmSiteMap::MakeMenus()
{
  std::vector<MenuLine> lines = DesignLines();
  const std::vector<MenuLine> others = {
      {"mnusubP", nullptr, "&Print"},
      {"mnusubPrintD", "mnusubP", "&Print currently displayed Sample Design", [this] { Print(); }, "Ctrl+P"},
      {"mnusubSaveAsBit", "mnusubP", "Save as &Bitmap", [this] { SaveAsBitmap(); }},
      {"", "mnusubP"},
      {"savePicture", "mnusubP", "Save p&icture...", [this] { SavePicture(); }, "Ctrl+S"},
      {"copyPicture", "mnusubP", "&Copy", [this] { Shared().Try([this] { CopyPicture(CurrentPicture()); }); },
       "Ctrl+C"},
      {"mnusubH", nullptr, "&Help"},
      {"mnusubSSMHelp", "mnusubH", "&Navigating the Map Display Menu",
       [this] { RequestHelp(Shared(), "hdoc18"); }},
      {"mnusubR", nullptr, "&Return"},
      {"mnusubRx", "mnusubR", "&Close Map Display Window", Leaves()},
  };
  lines.insert(lines.end(), others.begin(), others.end());
  SetMenus(lines);
}

std::vector<MenuLine> frmSiteMap::DesignLines()
{
  constexpr std::array<const char*, MaxDesigns> Names = {"mnusubRS1", "mnusubRS2", "mnusubRS3", "mnusubRS4",
                                                         "mnusubRS5"};
  std::vector<MenuLine> lines = {
      {"mnusubD", nullptr, "&Display"},
      {"mnusubSRS", "mnusubD", "&SRS Designs", {}, "", [this] { return form_.mnusubSRS; }},
  };
  for (std::size_t i = 0; i < Names.size(); ++i) {
    const int number = static_cast<int>(i) + 1;
    lines.push_back({Names.at(i), "mnusubSRS", QString("SRS Design &%1").arg(number),
                     [this, number] { ShowDesign(number); }, "", [this, i] { return form_.mnusubRS.at(i); }});
  }
  lines.push_back({"mnusubC", "mnusubD", "&Custom Designs"});
  lines.push_back({"mnusubUGD", "mnusubC", "&User Generated Design",
                   [this] { ShowDesign(ManualDesignNumber); }, "", [this] { return form_.mnusubUGD; }});
  return lines;
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
