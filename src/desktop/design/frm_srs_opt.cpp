#include "desktop/design/frm_srs_opt.h"

#include "desktop/design/frm_srs.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "desktop/parts/text_table.h"
#include "desktop/program/print_page.h"
#include "forms/auto_selection.h"
#include "toolkit/file_store.h"
#include "toolkit/number_text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QShortcut>

#include <utility>

namespace veln {

namespace {

/// A row for each stratum, a column for each D-factor.
TextTable TableOf(const SelectionScores& scores)
{
  constexpr double Hundredths = 100;
  TextTable table{{""}, {}};
  for (int f = 1; f <= DFactorCount; ++f) {
    table.Headings.push_back("F= " + FormatNumber(DFactorOf(f) / Hundredths, "0.00"));
  }
  for (int stratum = 1; stratum <= MostStrata; ++stratum) {
    std::vector<std::string> cells = {"Strata" + NumberToString(stratum)};
    for (int f = 1; f <= DFactorCount; ++f) {
      const auto& score = ScoreOf(scores, {stratum, f});
      cells.push_back(score ? FormatNumber(*score, "0.000") : "");
    }
    table.Rows.push_back(std::move(cells));
  }
  return table;
}

QGroupBox* MakeResult(QWidget* parent, const char* frameName, const QString& title, const char* labelName,
                      const std::string& text)
{
  QLabel* label = MakeText(parent, labelName, ToQt(text));
  label->setAccessibleName(ToQt(text));
  return Frame(parent, frameName, title, Column({label}));
}

/// A line of a CSV file. No heading and no score holds a comma or a quote.
std::string CsvLine(const std::vector<std::string>& cells)
{
  QStringList fields;
  for (const std::string& cell : cells) {
    fields << ToQt(cell).trimmed();
  }
  return FromQt(fields.join(',')) + "\r\n";
}

/// A quiet tone of the desktop's own highlight, on which the cell's text stays readable.
QColor BestTone(const QPalette& palette)
{
  constexpr double Share = 0.3;
  const QColor base = palette.color(QPalette::Base);
  const QColor mark = palette.color(QPalette::Highlight);
  const auto mix = [](int from, int to) { return from + qRound((to - from) * Share); };
  return {mix(base.red(), mark.red()), mix(base.green(), mark.green()), mix(base.blue(), mark.blue())};
}

}  // namespace

frmSRSOpt::frmSRSOpt(Program& program, QWidget* parent, const SelectionScores& scores)
    : ChildWindow(program, parent,
                  {Name, "Sample Design Optimization Results", "", {}, nullptr, QPoint(1500, 1000)}),
      scores_(scores),
      summary_(SummariseScores(scores_)),
      table_(TableOf(scores_))
{
  QLabel* caption = MakeLine(
      this, "Label1", "Optimization Criteria Scores for various Desing Factor / Grid Parsing Combinations");
  grid_ = new QTableWidget(MostStrata, DFactorCount, this);
  grid_->setObjectName("FGopt");
  grid_->setAccessibleName("Scores by strata and D-factor");
  FillGrid();
  SetColumn(*this, {MakeResult(this, "Frame1", "Best Design (based on minimum Optimization Criteria value)",
                               "lblBest", BestDesignText(summary_)),
                    MakeResult(this, "Frame2",
                               "Number of Acceptable Designs (i.e., below 1.3 or within 10% of Best Design)",
                               "lblAccpt", AcceptableText(summary_)),
                    {Column({caption, {grid_, 1}}), 1},
                    MakeButtons()});
  program.OnChange(this, [this] { ShowUse(); });
  MakeMenus();
  ShowUse();
}

QLayout* frmSRSOpt::MakeButtons()
{
  const auto copyText = [this] { QGuiApplication::clipboard()->setText(TabSeparated(table_)); };
  const auto save = [this] { SaveTable(); };
  QPushButton* copyTable =
      MakeButton(this, "copyScores", "&Copy", "copy the table as text with tabs (Ctrl+C)", copyText);
  QPushButton* saveTable =
      MakeButton(this, "saveScores", "&Save as CSV...", "save the table for a spreadsheet (Ctrl+S)", save);
  use_ = MakeButton(this, "useSettings", "&Use these settings",
                    "set D-factor and stratum of the chosen score in the design window", [this] {
                      auto* design = Shared().Find<frmSRS>();
                      if (const auto chosen = Chosen(); chosen && design != nullptr) {
                        design->UseSettings(*chosen, scores_.pnum);
                      }
                    });
  use_->setDefault(true);
  connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this, copyText);
  connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this, save);
  connect(grid_, &QTableWidget::itemSelectionChanged, this, [this] { ShowUse(); });
  return Row({copyTable, saveTable, LayoutItem::Rest(), use_});
}

void frmSRSOpt::FillGrid()
{
  for (int f = 1; f <= DFactorCount; ++f) {
    const auto column = static_cast<std::size_t>(f);
    grid_->setHorizontalHeaderItem(f - 1, new QTableWidgetItem(ToQt(table_.Headings[column])));
    for (int stratum = 1; stratum <= MostStrata; ++stratum) {
      const auto& cells = table_.Rows[static_cast<std::size_t>(stratum) - 1];
      grid_->setVerticalHeaderItem(stratum - 1, new QTableWidgetItem(ToQt(cells[0])));
      grid_->setItem(stratum - 1, f - 1, MakeScore({stratum, f}, cells[column]));
    }
  }
  grid_->setSelectionMode(QAbstractItemView::SingleSelection);
  grid_->setTabKeyNavigation(false);
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  grid_->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  grid_->verticalHeader()->setMinimumSectionSize(grid_->fontMetrics().lineSpacing() + SmallGap);
  if (summary_.Best) {
    grid_->setCurrentCell(summary_.Best->Stratum - 1, summary_.Best->FactorIndex - 1,
                          QItemSelectionModel::NoUpdate);
  }
  TintBest();
  grid_->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
}

QTableWidgetItem* frmSRSOpt::MakeScore(const Combination& combination, const std::string& text) const
{
  QTableWidgetItem* cell = MakeCell(ToQt(text));
  const bool acceptable = IsAcceptable(summary_, ScoreOf(scores_, combination));
  QFont font = grid_->font();
  font.setBold(acceptable);
  cell->setFont(font);
  QString meaning = acceptable ? "acceptable design" : "";
  if (summary_.Best == combination) {
    meaning = "best design";
  }
  cell->setToolTip(meaning);
  cell->setData(Qt::AccessibleDescriptionRole, meaning);
  return cell;
}

void frmSRSOpt::TintBest()
{
  if (summary_.Best) {
    grid_->item(summary_.Best->Stratum - 1, summary_.Best->FactorIndex - 1)
        ->setBackground(BestTone(palette()));
  }
}

void frmSRSOpt::changeEvent(QEvent* event)
{
  ChildWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && use_ != nullptr) {  // all is there
    TintBest();
  }
}

void frmSRSOpt::MakeMenus()
{
  SetMenus({
      {"mnuSRSOprint", nullptr, "&Print"},
      {"mnuSRSOpinfo", "mnuSRSOprint", "&Print Design Optimization Info",
       [this] {
         PrintTable(Shared(), this, windowTitle(), table_,
                    {ToQt(BestDesignText(summary_)), ToQt(AcceptableText(summary_))});
       },
       "Ctrl+P"},
      {"mnuSRSOR", nullptr, "&Return"},
      {"mnuSRSOReturn", "mnuSRSOR", "&Return to SRS Sample Site Selection Window", Leaves()},
  });
}

/// The combination of the cell selected, if it has a score.
std::optional<Combination> frmSRSOpt::Chosen() const
{
  const QModelIndexList selected = grid_->selectionModel()->selectedIndexes();
  if (selected.isEmpty()) {
    return std::nullopt;
  }
  const Combination chosen{selected.constFirst().row() + 1, selected.constFirst().column() + 1};
  return ScoreOf(scores_, chosen) ? std::optional(chosen) : std::nullopt;
}

void frmSRSOpt::SaveTable()
{
  const auto path = Shared().ChooseFile("Save as CSV", OutputPath(State(), "ads.csv"), "CSV files (*.csv)");
  if (!path) {
    return;
  }
  std::string content = CsvLine(table_.Headings);
  for (const auto& row : table_.Rows) {
    content += CsvLine(row);
  }
  Shared().Try([&] { WriteFiles({{*path, content}}); });
}

void frmSRSOpt::ShowUse()
{
  const auto* design = Shared().Find<frmSRS>();
  use_->setEnabled(Chosen().has_value() && design != nullptr && !design->Form().Finished);
}

}  // namespace veln
