#pragma once

#include "toolkit/text_table.h"

#include <QString>

class QTableWidget;
class QWidget;

namespace veln {

/// A read-only table of right-aligned texts: a click on a heading sorts by its numbers, Ctrl+C copies the
/// selected rows, or all if none is selected, as tab-separated text with the headings.
QTableWidget* MakeTextTable(QWidget* parent, const char* name, const TextTable& table);

/// Shows another table in the widget.
void FillTextTable(QTableWidget& widget, const TextTable& table);

/// The table as it stands, in its present order.
TextTable ReadTextTable(const QTableWidget& widget);

/// A table as tab-separated text, headings first, lines ending in LF.
QString TabSeparated(const TextTable& table);

}  // namespace veln
