#include "desktop/design/frm_srs_opt.h"

#include "desktop/design/frm_srs.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/text_roles.h"
#include "desktop/parts/text_table.h"
#include "desktop/program/print_page.h"
#include "forms/auto_selection.h"
#include "toolkit/file_store.h"
#include "toolkit/number_text.h"

#include <QAction>
#include <QClipboard>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include <utility>

namespace veln {

namespace {

QGroupBox* MakeResult(QWidget* parent, const char* frameName, const QString& title, const char* labelName,
                      const std::string& text)
{
  auto* frame = new QGroupBox(title, parent);
  frame->setObjectName(frameName);
  auto* column = new QVBoxLayout(frame);
  QLabel* label = MakeText(frame, labelName, ToQt(text));
  label->setAccessibleName(ToQt(text));
  column->addWidget(label);
  return frame;
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
    : ChildWindow(program, parent, {Name, "Sample Design Optimization Results", {1500, 1000}, "", {}}),
      scores_(scores),
      summary_(SummariseScores(scores_))
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  layout->addWidget(MakeResult(this, "Frame1", "Best Design (based on minimum Optimization Criteria value)",
                               "lblBest", BestDesignText(summary_)));
  layout->addWidget(MakeResult(this, "Frame2",
                               "Number of Acceptable Designs (i.e., below 1.3 or within 10% of Best Design)",
                               "lblAccpt", AcceptableText(summary_)));
  QLabel* caption = MakeText(
      this, "Label1", "Optimization Criteria Scores for various Desing Factor / Grid Parsing Combinations");
  caption->setWordWrap(false);
  auto* table = new QVBoxLayout;
  table->setSpacing(SmallGap);
  table->addWidget(caption);
  grid_ = new QTableWidget(MostStrata, DFactorCount, this);
  grid_->setObjectName("FGopt");
  grid_->setAccessibleName("Scores by strata and D-factor");
  table->addWidget(grid_, 1);
  layout->addLayout(table, 1);
  FillGrid();

  layout->addLayout(MakeButtons());
  program.OnChange(this, [this] { ShowUse(); });
  MakeMenus();
  ShowUse();
}

QLayout* frmSRSOpt::MakeButtons()
{
  auto* buttons = new QHBoxLayout;
  QPushButton* copyTable =
      MakeButton(this, "copyScores", "&Copy", "copy the table as text with tabs (Ctrl+C)");
  QPushButton* saveTable =
      MakeButton(this, "saveScores", "&Save as CSV...", "save the table for a spreadsheet (Ctrl+S)");
  use_ = MakeButton(this, "useSettings", "&Use these settings",
                    "set D-factor and stratum of the chosen score in the design window");
  use_->setDefault(true);
  buttons->addWidget(copyTable);
  buttons->addWidget(saveTable);
  buttons->addStretch();
  buttons->addWidget(use_);
  const auto copyText = [this] { QGuiApplication::clipboard()->setText(TabSeparated(Table())); };
  connect(copyTable, &QPushButton::clicked, this, copyText);
  connect(saveTable, &QPushButton::clicked, this, [this] { SaveTable(); });
  connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this, copyText);
  connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this, [this] { SaveTable(); });
  connect(grid_, &QTableWidget::itemSelectionChanged, this, [this] { ShowUse(); });
  connect(use_, &QPushButton::clicked, this, [this] {
    auto* design = Shared().Find<frmSRS>();
    if (const auto chosen = Chosen(); chosen && design != nullptr) {
      design->UseSettings(*chosen, scores_.pnum);
    }
  });
  return buttons;
}

void frmSRSOpt::FillGrid()
{
  constexpr double Hundredths = 100;
  for (int f = 1; f <= DFactorCount; ++f) {
    grid_->setHorizontalHeaderItem(
        f - 1, new QTableWidgetItem(ToQt("F= " + FormatNumber(DFactorOf(f) / Hundredths, "0.00"))));
  }
  for (int stratum = 1; stratum <= MostStrata; ++stratum) {
    grid_->setVerticalHeaderItem(stratum - 1, new QTableWidgetItem(ToQt("Strata" + NumberToString(stratum))));
    for (int f = 1; f <= DFactorCount; ++f) {
      grid_->setItem(stratum - 1, f - 1, MakeCell({stratum, f}));
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

QTableWidgetItem* frmSRSOpt::MakeCell(const Combination& combination) const
{
  const auto& score = ScoreOf(scores_, combination);
  auto* cell = new QTableWidgetItem(score ? ToQt(FormatNumber(*score, "0.000")) : QString());
  cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  const bool acceptable = IsAcceptable(summary_, score);
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
  auto* bar = new QMenuBar(this);
  QMenu* print = bar->addMenu("&Print");
  print->menuAction()->setObjectName("mnuSRSOprint");
  QAction* printResults = print->addAction("&Print Design Optimization Info");
  printResults->setObjectName("mnuSRSOpinfo");
  printResults->setShortcut(QKeySequence::Print);
  QMenu* back = bar->addMenu("&Return");
  back->menuAction()->setObjectName("mnuSRSOR");
  QAction* done = back->addAction("&Return to SRS Sample Site Selection Window");
  done->setObjectName("mnuSRSOReturn");
  layout()->setMenuBar(bar);
  connect(printResults, &QAction::triggered, this, [this] {
    PrintTable(Shared(), this, windowTitle(), Table(),
               {ToQt(BestDesignText(summary_)), ToQt(AcceptableText(summary_))});
  });
  connect(done, &QAction::triggered, this, [this] { Unload(); });
}

TextTable frmSRSOpt::Table() const
{
  TextTable table{{""}, {}};
  for (int column = 0; column < grid_->columnCount(); ++column) {
    table.Headings.push_back(FromQt(grid_->horizontalHeaderItem(column)->text()));
  }
  for (int row = 0; row < grid_->rowCount(); ++row) {
    std::vector<std::string> cells = {FromQt(grid_->verticalHeaderItem(row)->text())};
    for (int column = 0; column < grid_->columnCount(); ++column) {
      cells.push_back(FromQt(grid_->item(row, column)->text()));
    }
    table.Rows.push_back(std::move(cells));
  }
  return table;
}

std::optional<Combination> frmSRSOpt::Chosen() const
{
  const auto selected = grid_->selectedItems();
  if (selected.isEmpty() || selected.constFirst()->text().isEmpty()) {
    return std::nullopt;
  }
  return Combination{selected.constFirst()->row() + 1, selected.constFirst()->column() + 1};
}

void frmSRSOpt::SaveTable()
{
  const auto path = Shared().ChooseFile("Save as CSV", OutputPath(State(), "ads.csv"), "CSV files (*.csv)");
  if (!path) {
    return;
  }
  const TextTable table = Table();
  std::string content = CsvLine(table.Headings);
  for (const auto& row : table.Rows) {
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
