#pragma once

#include "toolkit/text_table.h"

#include <QString>
#include <QTableWidget>

namespace veln {

/// A read-only table of right-aligned texts: a click on a heading sorts by its numbers, Ctrl+C copies the
/// selected rows, or all if none is selected, as tab-separated text with the headings.
class TextTableView : public QTableWidget {
 public:
  TextTableView(QWidget* parent, const char* name, const QString& accessibleName, const TextTable& table);

  /// Shows another table.
  void Show(const TextTable& table);
  /// The table shown, in its present order.
  [[nodiscard]] TextTable Sorted() const;
  /// The row of the table given that stands in a row of the view, and where a row of it stands now.
  [[nodiscard]] std::size_t RowGiven(int shownRow) const;
  [[nodiscard]] int RowShown(std::size_t givenRow) const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  TextTable table_;
};

/// A cell that shows a text, at the right, and cannot be changed.
QTableWidgetItem* MakeCell(const QString& text);

/// A table as tab-separated text, headings first, lines ending in LF.
QString TabSeparated(const TextTable& table);

}  // namespace veln
