#include "desktop/design/frm_srs_opt.h"

#include "desktop/controls.h"
#include "desktop/design/frm_srs.h"
#include "desktop/print_page.h"
#include "desktop/text_roles.h"
#include "desktop/text_table.h"
#include "toolkit/file_store.h"
#include "toolkit/number_text.h"

#include <QAction>
#include <QClipboard>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenuBar>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

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

/// A field of a CSV file.
QString CsvField(const std::string& text)
{
  return '"' + ToQt(text).trimmed().replace("\"", "\"\"") + '"';
}

}  // namespace

frmSRSOpt::frmSRSOpt(Program& program, QWidget* parent, const SelectionScores& scores)
    : ChildWindow(program, parent, {Name, "Sample Design Optimization Results", {1500, 1000}, "", {}}),
      scores_(scores),
      summary_(SummariseScores(scores))
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  layout->addWidget(MakeResult(this, "Frame1", "Best Design (based on minimum Optimization Criteria value)",
                               "lblBest", summary_.lblBest));
  layout->addWidget(MakeResult(this, "Frame2",
                               "Number of Acceptable Designs (i.e., below 1.3 or within 10% of Best Design)",
                               "lblAccpt", summary_.lblAccpt));
  layout->addWidget(MakeText(
      this, "Label1", "Optimization Criteria Scores for various Desing Factor / Grid Parsing Combinations"));
  grid_ = new QTableWidget(MostStrata, DFactorCount, this);
  grid_->setObjectName("FGopt");
  grid_->setAccessibleName("Scores by strata and D-factor");
  layout->addWidget(grid_, 1);
  FillGrid();

  auto* buttons = new QHBoxLayout;
  use_ = MakeButton(this, "useSettings", "&Use these settings",
                    "set D-factor and stratum of the chosen score in the design window");
  buttons->addStretch();
  buttons->addWidget(use_);
  layout->addLayout(buttons);
  connect(grid_, &QTableWidget::itemSelectionChanged, this, [this] { ShowUse(); });
  connect(use_, &QPushButton::clicked, this, [this] {
    auto* design = Shared().Find<frmSRS>();
    if (const auto chosen = Chosen(); chosen && design != nullptr) {
      design->UseSettings(*chosen, scores_.pnum);
    }
  });
  program.OnChange(this, [this] { ShowUse(); });
  MakeMenus();
  ShowUse();
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
      const auto& score = ScoreOf(scores_, {stratum, f});
      auto* cell = new QTableWidgetItem(score ? ToQt(FormatNumber(*score, "0.000")) : QString());
      cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
      QFont font = cell->font();
      font.setBold(IsAcceptable(summary_, score));
      cell->setFont(font);
      if (summary_.Best && summary_.Best->Stratum == stratum && summary_.Best->FactorIndex == f) {
        cell->setBackground(palette().color(QPalette::Highlight));
        cell->setForeground(palette().color(QPalette::HighlightedText));
        cell->setToolTip("best design");
      }
      grid_->setItem(stratum - 1, f - 1, cell);
    }
  }
  grid_->setSelectionMode(QAbstractItemView::SingleSelection);
  grid_->setTabKeyNavigation(false);
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  grid_->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
}

void frmSRSOpt::MakeMenus()
{
  auto* bar = new QMenuBar(this);
  QMenu* print = bar->addMenu("&Print");
  print->menuAction()->setObjectName("mnuSRSOprint");
  QAction* printResults = print->addAction("&Print Design Optimization Info");
  printResults->setObjectName("mnuSRSOpinfo");
  printResults->setShortcut(QKeySequence::Print);
  QAction* copyTable = print->addAction("&Copy");
  copyTable->setObjectName("copyScores");
  copyTable->setShortcut(QKeySequence::Copy);
  QAction* saveTable = print->addAction("&Save as CSV...");
  saveTable->setObjectName("saveScores");
  saveTable->setShortcut(QKeySequence::Save);
  QMenu* back = bar->addMenu("&Return");
  back->menuAction()->setObjectName("mnuSRSOR");
  QAction* done = back->addAction("&Return to SRS Sample Site Selection Window");
  done->setObjectName("mnuSRSOReturn");
  layout()->setMenuBar(bar);
  connect(printResults, &QAction::triggered, this, [this] {
    PrintTable(Shared(), this, windowTitle(), Table(), {ToQt(summary_.lblBest), ToQt(summary_.lblAccpt)});
  });
  connect(copyTable, &QAction::triggered, this,
          [this] { QGuiApplication::clipboard()->setText(TabSeparated(Table())); });
  connect(saveTable, &QAction::triggered, this, [this] { SaveTable(); });
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
  const auto line = [](const std::vector<std::string>& cells) {
    QStringList fields;
    for (const std::string& cell : cells) {
      fields << CsvField(cell);
    }
    return FromQt(fields.join(',')) + "\r\n";
  };
  const TextTable table = Table();
  std::string content = line(table.Headings);
  for (const auto& row : table.Rows) {
    content += line(row);
  }
  Shared().Try([&] { WriteFiles({{*path, content}}); });
}

void frmSRSOpt::ShowUse()
{
  const auto* design = Shared().Find<frmSRS>();
  use_->setEnabled(Chosen().has_value() && design != nullptr && !design->Form().Finished);
}

}  // namespace veln
