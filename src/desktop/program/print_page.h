#pragma once

#include "desktop/program/program.h"
#include "toolkit/text_table.h"

#include <QString>
#include <QStringList>

#include <functional>

class QPrinter;

namespace veln {

/// Prints what `paint` paints, false if it could not, on a printer that the user chooses. Cancelling prints
/// nothing; a print that fails is told with the reason. True once the page was sent.
bool PrintOnePage(Program& program, QWidget* parent, const std::function<bool(QPrinter& printer)>& paint);

/// The same for a clean page: title, field ID, date, lines of text and the table.
void PrintTable(Program& program, QWidget* parent, const QString& title, const TextTable& table,
                const QStringList& lines = {});

/// The same for lines of text alone, in a font of one width.
void PrintLines(Program& program, QWidget* parent, const QString& title, const QStringList& lines);

}  // namespace veln
